// SPDX-License-Identifier: GPL-3.0-or-later
// Any text in any language from any state: every byte gets a style, nothing beyond them is written, and styling in two
// parts gives the same as styling in one.
#include "fuzz/fuzztarget.h"
#include "syntax/languageregistry.h"
#include "syntax/syntaxengine.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Records the state at one line start.
class OneLine final : public LineStateSink
{
public:
    explicit OneLine(int line) : m_line(line) {}

    bool lineStart(qsizetype offset, LineState state) override
    {
        if (m_line-- == 0)
            found = {offset, state};
        return true;
    }

    std::optional<std::pair<qsizetype, LineState>> found;

private:
    int m_line;
};

const std::vector<std::shared_ptr<const SyntaxEngine>> &engines()
{
    static const auto all = [] {
        LanguageRegistry registry;
        registry.RegisterLanguage(u"Perl"_s, perlLanguage());
        std::vector<std::shared_ptr<const SyntaxEngine>> made;
        for (const QString &name : registry.names())
            made.push_back(registry.engine(name));
        return made;
    }();
    return all;
}

} // namespace

FUZZ_TARGET(syntax)
{
    // The first six bytes choose the language, the line of the restart and the state at the beginning.
    if (size < 6)
        return 0;
    const SyntaxEngine &engine = *engines()[data[0] % engines().size()];
    OneLine sink(data[1]);
    LineState state = 0;
    std::memcpy(&state, data + 2, sizeof state);
    const QByteArrayView text(data + 6, static_cast<qsizetype>(size - 6));

    std::vector<unsigned char> whole(size - 6, 255);
    if (engine.styleRange(text, state, whole, sink).end != text.size())
        std::abort();
    for (const unsigned char style : whole) {
        if (style >= syntaxStyleCount)
            std::abort();
    }
    if (sink.found) {
        const auto [offset, stateThere] = *sink.found;
        const QByteArrayView rest = text.sliced(offset);
        std::vector<unsigned char> part(static_cast<std::size_t>(rest.size()));
        engine.styleRange(rest, stateThere, part);
        if (!std::ranges::equal(part, std::span(whole).subspan(static_cast<std::size_t>(offset))))
            std::abort();
    }
    FoldState fold;
    engine.foldRules().fold(text, whole, fold);
    return 0;
}

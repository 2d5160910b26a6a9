// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/syntaxengine.h"

#include "syntax/procedurallexer.h"
#include "syntax/taglexer.h"

#include <vector>

namespace zephira {

namespace {

class NobodyListens final : public LineStateSink
{
public:
    bool lineStart(qsizetype, LineState) override { return true; }
};

/// Splits a text into lines. The position of the next line feed is remembered, so that a text with only carriage
/// returns takes linear time, too.
class LineDivider
{
public:
    LineDivider(const Byte *begin, const Byte *end) : m_end(end), m_lineFeed(begin) { seekLineFeed(begin); }

    LineBytes lineAt(const Byte *begin)
    {
        if (m_lineFeed < begin)
            seekLineFeed(begin);
        const std::size_t room = static_cast<std::size_t>(m_lineFeed - begin);
        const auto *carriageReturn = room == 0 ? nullptr : static_cast<const Byte *>(std::memchr(begin, '\r', room));
        const Byte *next = m_lineFeed < m_end ? m_lineFeed + 1 : m_end;
        if (!carriageReturn)
            return {begin, m_lineFeed, next};
        return {begin, carriageReturn, carriageReturn + 1 == m_lineFeed ? next : carriageReturn + 1};
    }

private:
    void seekLineFeed(const Byte *from)
    {
        const std::size_t room = static_cast<std::size_t>(m_end - from);
        const auto *hit = room == 0 ? nullptr : static_cast<const Byte *>(std::memchr(from, '\n', room));
        m_lineFeed = hit ? hit : m_end;
    }

    const Byte *m_end;
    const Byte *m_lineFeed;
};

std::unique_ptr<const LineLexer> makeLexer(const LanguageDefinition &definition)
{
    if (definition.language.Style == 1)
        return std::make_unique<const TagLexer>(definition);
    return std::make_unique<const ProceduralLexer>(definition);
}

} // namespace

SyntaxEngine::SyntaxEngine(const LanguageDefinition &definition)
    : m_lexer(makeLexer(definition)), m_hasTags(definition.language.Style == 1), m_foldRules(definition)
{}

SyntaxEngine::~SyntaxEngine() = default;

StyledRange SyntaxEngine::styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles,
                                     LineStateSink &sink) const
{
    Q_ASSERT(styles.size() >= static_cast<std::size_t>(text.size()));
    const auto *begin = reinterpret_cast<const Byte *>(text.data());
    const Byte *end = begin + text.size();
    const StyleCanvas canvas{begin, styles.data()};
    LineDivider divider(begin, end);
    LineState state = stateAtStart;
    const Byte *p = begin;
    while (p < end) {
        const LineBytes line = divider.lineAt(p);
        state = m_lexer->paintLine(canvas, line, state);
        p = line.next;
        const bool endsLine = line.end < line.next;
        if (endsLine && !sink.lineStart(p - begin, state))
            break;
    }
    return {p - begin, state};
}

StyledRange SyntaxEngine::styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles) const
{
    NobodyListens sink;
    return styleRange(text, stateAtStart, styles, sink);
}

CodePlace SyntaxEngine::placeBehind(QByteArrayView partOfLine, LineState stateAtStart, SyntaxStyle before) const
{
    std::vector<unsigned char> styles(static_cast<std::size_t>(partOfLine.size()));
    const StyledRange styled = styleRange(partOfLine, stateAtStart, styles);
    const SyntaxStyle last = styles.empty() ? before : static_cast<SyntaxStyle>(styles.back());
    return m_hasTags ? placeInMarkup(styled.state, last) : placeInCode(last);
}

} // namespace zephira

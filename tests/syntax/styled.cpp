// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/styled.h"

#include "syntax/languageregistry.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr unsigned char guard = 0xA5;
constexpr std::size_t guardSize = 16;

char letterOf(unsigned char style)
{
    return style < 10 ? static_cast<char>('0' + style) : style == 10 ? 'a' : '?';
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

} // namespace

const SyntaxEngine &engineOf(const QString &language)
{
    static const std::unique_ptr<LanguageRegistry> registry = [] {
        auto made = std::make_unique<LanguageRegistry>();
        made->RegisterLanguage(u"Perl"_s, perlLanguage());
        return made;
    }();
    const auto engine = registry->engine(language);
    if (!engine)
        qFatal("no language %s", qPrintable(language));
    return *engine;
}

std::vector<unsigned char> stylesOf(const SyntaxEngine &engine, QByteArrayView text, LineState state)
{
    const std::size_t size = static_cast<std::size_t>(text.size());
    const std::unique_ptr<char[]> exact(new char[size]);
    std::ranges::copy(text, exact.get());
    std::vector<unsigned char> styles(size + 2 * guardSize, guard);
    engine.styleRange({exact.get(), text.size()}, state, std::span(styles).subspan(guardSize, size));
    const auto untouched = [](unsigned char byte) { return byte == guard; };
    if (!std::all_of(styles.begin(), styles.begin() + guardSize, untouched)
        || !std::all_of(styles.end() - guardSize, styles.end(), untouched))
        qFatal("styles were written beyond the text");
    return {styles.begin() + guardSize, styles.end() - guardSize};
}

QByteArray byteLetters(const SyntaxEngine &engine, QByteArrayView text)
{
    QByteArray letters;
    for (const unsigned char style : stylesOf(engine, text))
        letters += letterOf(style);
    return letters;
}

QByteArray styleLetters(const SyntaxEngine &engine, QByteArrayView text)
{
    const QByteArray bytes = byteLetters(engine, text);
    QByteArray letters;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' || text[i] == '\r')
            letters += text[i];
        else if (!continuesCharacter(text[i]))
            letters += bytes[i];
        else if (bytes[i] != bytes[i - 1])
            letters.back() = '!';
    }
    return letters;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/characterspans.h"

#include "core/entitynames.h"

#include <algorithm>

namespace zephira {

namespace {

/// The longest name has eight characters; numbers may have some leading zeroes.
constexpr qsizetype longestReference = 16;
/// Names of characters up to this one are also read without a semicolon.
constexpr char32_t lastWithoutSemicolon = 0xff;

bool isAsciiAlphanumeric(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
}

/// The reference that begins with the ampersand at that place; its end is its begin if there is none.
CharacterSpan referenceAt(QStringView text, qsizetype place, References references)
{
    const QStringView rest = text.sliced(place + 1);
    qsizetype length = rest.startsWith(u'#') ? 1 : 0;
    while (length < rest.size() && length < longestReference && isAsciiAlphanumeric(rest[length]))
        ++length;
    const QStringView name = rest.first(length);
    const CharacterSpan none{0, place, place};
    const char32_t character = entityCharacter(name);
    if (character == 0)
        return none;
    if (length < rest.size() && rest[length] == u';')
        return {character, place, place + length + 2};
    if (name.startsWith(u'#'))
        return {character, place, place + length + 1};
    const bool isValuePart = references == References::InValue && length < rest.size() && rest[length] == u'=';
    if (character > lastWithoutSemicolon || name == u"apos" || isValuePart)
        return none;
    return {character, place, place + length + 1};
}

} // namespace

CharacterSpan characterAt(QStringView text, qsizetype place, References references)
{
    const QChar c = text[place];
    if (c == u'\r') {
        const bool isPair = place + 1 < text.size() && text[place + 1] == u'\n';
        return {U'\n', place, place + (isPair ? 2 : 1)};
    }
    if (c == u'&' && references != References::None) {
        if (const CharacterSpan reference = referenceAt(text, place, references); reference.end > place)
            return reference;
    }
    if (c.isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(c, text[place + 1]), place, place + 2};
    return {c.unicode(), place, place + 1};
}

std::vector<CharacterSpan> characterSpans(QStringView text, References references)
{
    std::vector<CharacterSpan> spans;
    spans.reserve(static_cast<size_t>(text.size()));
    for (qsizetype place = 0; place < text.size(); place = spans.back().end)
        spans.push_back(characterAt(text, place, references));
    return spans;
}

void appendRead(QStringView text, References references, QString &read)
{
    const auto isPlain = [&](QChar c) { return c != u'\r' && (c != u'&' || references == References::None); };
    qsizetype place = 0;
    while (place < text.size()) {
        const auto rest = text.sliced(place);
        const auto special = std::ranges::find_if_not(rest, isPlain);
        const qsizetype length = special - rest.begin();
        read += rest.first(length);
        place += length;
        if (place < text.size()) {
            const CharacterSpan span = characterAt(text, place, references);
            read += QStringView(QString::fromUcs4(&span.character, 1));
            place = span.end;
        }
    }
}

} // namespace zephira

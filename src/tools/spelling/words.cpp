// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/words.h"

#include "core/textparts.h"

#include <QChar>
#include <QStringBuilder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How much of a sentence is shown on either side of the word, and how much of a word, in UTF-16 code units.
constexpr qsizetype longestSide = 160;
constexpr qsizetype longestWord = 60;

constexpr bool isAscii(char16_t unit)
{
    return unit < 0x80;
}

constexpr bool isAsciiDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

enum class Kind { Other, Letter, Digit, Mark, Apostrophe };

struct Character {
    Kind kind = Kind::Other;
    qsizetype length = 1; ///< 2 for a surrogate pair
};

Kind kindOf(char32_t character)
{
    if (QChar::isLetter(character))
        return Kind::Letter;
    if (QChar::isMark(character))
        return Kind::Mark;
    return QChar::isDigit(character) ? Kind::Digit : Kind::Other;
}

Character characterAt(QStringView text, qsizetype at)
{
    const char16_t unit = text[at].unicode();
    if (isAsciiLetter(unit))
        return {Kind::Letter};
    if (isAsciiDigit(unit))
        return {Kind::Digit};
    if (unit == u'\'' || unit == u'’')
        return {Kind::Apostrophe};
    if (isAscii(unit))
        return {};
    if (QChar::isHighSurrogate(unit) && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return {kindOf(QChar::surrogateToUcs4(unit, text[at + 1].unicode())), 2};
    return {kindOf(unit)};
}

/// The end of the word that goes on at `at`.
qsizetype wordEnd(QStringView text, qsizetype at)
{
    while (at < text.size()) {
        const Character here = characterAt(text, at);
        if (here.kind == Kind::Other)
            break;
        if (here.kind == Kind::Apostrophe && (at + 1 == text.size() || characterAt(text, at + 1).kind != Kind::Letter))
            break;
        at += here.length;
    }
    return at;
}

/// The end of the digits at `at`.
qsizetype digitsEnd(QStringView text, qsizetype at)
{
    while (at < text.size()) {
        const Character here = characterAt(text, at);
        if (here.kind != Kind::Digit)
            break;
        at += here.length;
    }
    return at;
}

bool isOrdinalEnding(QStringView word)
{
    static constexpr QStringView endings[] = {u"st", u"nd", u"rd", u"th"};
    return word.size() == 2 && std::ranges::any_of(endings, [&](QStringView ending) {
               return word.compare(ending, Qt::CaseInsensitive) == 0;
           });
}

bool endsSentence(QStringView text, qsizetype at)
{
    const char16_t unit = text[at].unicode();
    return (unit == u'.' || unit == u'!' || unit == u'?') && (at + 1 == text.size() || text[at + 1].isSpace());
}

/// Adds a text without its runs of white space.
void append(QString &shown, QStringView text)
{
    for (const QChar unit : text) {
        if ((!unit.isSpace() && unit.isPrint()) || unit.isSurrogate())
            shown += unit;
        else if (!shown.isEmpty() && !shown.endsWith(u' '))
            shown += u' ';
    }
}

/// A place that doesn't separate the halves of a surrogate pair.
qsizetype between(QStringView text, qsizetype at)
{
    return at > 0 && at < text.size() && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate() ? at - 1 : at;
}

/// One end of a sentence, and whether the sentence goes on beyond it.
struct SentenceEnd {
    qsizetype at = 0;
    bool isCut = false;
};

SentenceEnd startOfSentence(QStringView text, qsizetype wordStart)
{
    qsizetype start = wordStart;
    for (int lineEnds = 0; start > 0 && wordStart - start < longestSide; --start) {
        if (endsSentence(text, start - 1))
            return {start};
        if (!text[start - 1].isSpace())
            lineEnds = 0;
        else if (endsLine(text, start - 1) && ++lineEnds == 2)
            return {start};
    }
    return {between(text, start), start > 0};
}

SentenceEnd endOfSentence(QStringView text, qsizetype wordEnd)
{
    qsizetype end = wordEnd;
    for (int lineEnds = 0; end < text.size() && end - wordEnd < longestSide; ++end) {
        if (endsSentence(text, end))
            return {end + 1};
        if (!text[end].isSpace())
            lineEnds = 0;
        else if (endsLine(text, end) && ++lineEnds == 2)
            return {end};
    }
    return {between(text, end), end < text.size()};
}

QString shortened(QStringView word)
{
    if (word.size() <= longestWord)
        return word.toString();
    const qsizetype half = longestWord / 2;
    return word.first(between(word, half)) % u'…' % word.sliced(between(word, word.size() - half));
}

} // namespace

TextPlace nextWord(QStringView text, qsizetype from)
{
    qsizetype at = from;
    while (at < text.size()) {
        const Character here = characterAt(text, at);
        if (here.kind == Kind::Letter)
            return {at, wordEnd(text, at) - at};
        if (here.kind != Kind::Digit) {
            at += here.length;
            continue;
        }
        const qsizetype letters = digitsEnd(text, at);
        const qsizetype end = wordEnd(text, letters);
        if (isOrdinalEnding(text.sliced(letters, end - letters)))
            return {at, end - at};
        at = letters;
    }
    return {};
}

Excerpt sentenceAround(QStringView text, TextPlace word)
{
    const SentenceEnd start = startOfSentence(text, word.start);
    const SentenceEnd end = endOfSentence(text, word.end());
    Excerpt excerpt;
    if (start.isCut)
        excerpt.text += u'…';
    append(excerpt.text, text.sliced(start.at, word.start - start.at));
    const QString shownWord = shortened(text.sliced(word.start, word.length));
    excerpt.word = {excerpt.text.size(), shownWord.size()};
    excerpt.text += shownWord;
    append(excerpt.text, text.sliced(word.end(), end.at - word.end()));
    if (end.isCut)
        excerpt.text += u'…';
    return excerpt;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/spelling/customdictionary.h"

#include "core/textparts.h"
#include "files/utf8.h"

#include <QSet>

#include <algorithm>

namespace zephira {

namespace {

constexpr qsizetype longestWord = 100;
constexpr QByteArrayView byteOrderMark = "\xef\xbb\xbf";

} // namespace

bool isCustomWord(QStringView word)
{
    if (word.size() > longestWord)
        return false;
    bool hasLetter = false;
    for (qsizetype at = 0; at < word.size(); ++at) {
        char32_t character = word[at].unicode();
        if (word[at].isHighSurrogate() && at + 1 < word.size() && word[at + 1].isLowSurrogate()) {
            character = QChar::surrogateToUcs4(word[at], word[at + 1]);
            ++at;
        }
        if (QChar::isSpace(character) || !QChar::isPrint(character))
            return false;
        hasLetter |= QChar::isLetter(character);
    }
    return hasLetter;
}

CustomDictionary readCustomDictionary(const QByteArray &bytes)
{
    CustomDictionary dictionary;
    QSet<QString> seen;
    const QByteArrayView all(bytes);
    qsizetype number = 0;
    qsizetype start = all.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    while (start < all.size()) {
        ++number;
        const auto end = std::find_if(all.begin() + start, all.end(), isLineEnd<char>) - all.begin();
        const QByteArrayView line = all.sliced(start, end - start).trimmed();
        start = end + (all.sliced(end).startsWith("\r\n") ? 2 : 1);
        if (line.isEmpty())
            continue;
        const QString word = isValidUtf8(line) ? QString::fromUtf8(line) : QString();
        if (!isCustomWord(word)) {
            if (dictionary.faultyLines++ == 0)
                dictionary.firstFaultyLine = number;
        } else if (!seen.contains(word)) {
            seen.insert(word);
            dictionary.words.append(word);
        }
    }
    return dictionary;
}

QByteArray withCustomWord(const QByteArray &bytes, const QString &word)
{
    if (readCustomDictionary(bytes).words.contains(word))
        return bytes;
    const QByteArrayView lineEnd = bytes.contains("\r\n") ? QByteArrayView("\r\n") : QByteArrayView("\n");
    QByteArray longer = bytes;
    if (!bytes.isEmpty() && bytes != byteOrderMark && !isLineEnd(bytes.back()))
        longer += lineEnd;
    longer += word.toUtf8();
    longer += lineEnd;
    return longer;
}

} // namespace zephira

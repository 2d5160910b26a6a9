// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/casetext.h"

#include <QList>
#include <QString>

namespace zephira {

namespace {

template<typename Change>
QByteArray changed(QByteArrayView text, Change change)
{
    const QString before = QString::fromUtf8(text);
    return before.toUtf8() == text ? change(before).toUtf8() : text.toByteArray();
}

bool isInWord(char32_t character)
{
    return QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

bool isApostrophe(char32_t character)
{
    return character == U'\'' || character == U'\u2019';
}

} // namespace

QByteArray upperCase(QByteArrayView text)
{
    return changed(text, [](const QString &before) { return before.toUpper(); });
}

QByteArray lowerCase(QByteArrayView text)
{
    return changed(text, [](const QString &before) { return before.toLower(); });
}

QByteArray capitalised(QByteArrayView text)
{
    return changed(text, [](const QString &before) {
        QString after;
        QString word;
        const auto endWord = [&] {
            const qsizetype first = !word.isEmpty() && word.front().isHighSurrogate() ? 2 : 1;
            after += word.left(first).toUpper() + word.mid(first).toLower();
            word.clear();
        };
        for (const char32_t character : before.toUcs4()) {
            const bool continues = isInWord(character) || (isApostrophe(character) && !word.isEmpty());
            if (!continues)
                endWord();
            (continues ? word : after) += QString::fromUcs4(&character, 1);
        }
        endWord();
        return after;
    });
}

} // namespace zephira

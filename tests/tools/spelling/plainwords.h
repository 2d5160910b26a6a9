// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace zephira {

/// The words of a text, found in the straightforward way: by a pattern.
inline QStringList plainWords(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(\p{Nd}+(?i:st|nd|rd|th)(?![\p{L}\p{M}\p{Nd}])(?!['’]\p{L})|\p{L}(?:[\p{L}\p{M}\p{Nd}]|['’](?=\p{L}))*)"));
    QStringList words;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        words.append(match.captured());
    return words;
}

} // namespace zephira

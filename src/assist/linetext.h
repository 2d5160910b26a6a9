// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLocale>

namespace zephira {

/// What becomes of whole lines. Texts are UTF-8 with any line ends, which stay as they are.

/// The lines as one: between two of them one blank stands in place of the line end and of the blanks around it, and none
/// beside an empty line. The end of the last line stays.
QByteArray joinedLines(QByteArrayView lines);

/// The lines without the blanks and tabs at their ends.
QByteArray withoutTrailingBlanks(QByteArrayView lines);

/// The lines in the order of their letters in a language: small and capital letters are alike, numbers count by their
/// value, and lines that are alike stay in their order. The line ends stay where they are.
QByteArray sortedLines(QByteArrayView lines, const QLocale &locale);

/// Two neighbouring blocks of lines in the other order. Line ends stay where they are: where the last line had none, it
/// has none afterwards.
QByteArray swappedLines(QByteArrayView first, QByteArrayView second);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace zephira {

/// What becomes of whole lines. Texts are UTF-8 with any line ends, which stay as they are.

/// The lines as one: between two of them one blank stands in place of the line end and of the blanks around it, and none
/// beside an empty line. The end of the last line stays.
QByteArray joinedLines(QByteArrayView lines);

/// The lines without the blanks and tabs at their ends.
QByteArray withoutTrailingBlanks(QByteArrayView lines);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The folder whose content is installed next to the program.
QString shippedFolder();

/// A sentence on what is wrong with a shipped file, with its name; empty if nothing is. The file must be UTF-8 without
/// a byte order mark, have only the given line ends (CR LF or LF), no blanks at the ends of its lines, and no tabs;
/// with `tabs` these are allowed at the start of a line.
QString faultOf(const QString &file, const QString &lineEnd, bool tabs = false);

/// The text of a shipped file, given relative to the folder; empty if the file doesn't exist.
QString shippedText(const QString &file);

/// The lines of a shipped file, whether or not the last one ends with a line end.
QStringList shippedLines(const QString &file);

/// The values that occur more than once in a list, each listed once.
QStringList repeated(QStringList values);

/// Whether each bracket of a text is closed by one of the same kind, and quotation marks come in pairs. Brackets within
/// quotation marks don't count.
bool isBalanced(const QString &text);

} // namespace zephira

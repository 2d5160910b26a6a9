// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The folder whose content is laid out beside the program.
QString shippedFolder();

/// A sentence on what is wrong with a shipped file, with its name; empty for a good one. A good one is UTF-8 without a byte
/// order mark, has the given line ends and no others (CR LF or LF), no blanks at the ends of its lines, and no tabs, or with
/// `tabs` only some at the start of its lines.
QString faultOf(const QString &file, const QString &lineEnd, bool tabs = false);

/// The text of a shipped file, named relative to the folder. A file that isn't there gives an empty text.
QString shippedText(const QString &file);

/// Its lines. The last one may have a line end behind it or none.
QStringList shippedLines(const QString &file);

/// What stands more than once in a list, each once.
QStringList repeated(QStringList values);

/// Whether each bracket of a text is closed by one of its kind, and quotation marks come in pairs. Brackets between
/// quotation marks don't count.
bool isBalanced(const QString &text);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// The lines of a tip file, one tip each, in the order of the file. A line end after the last line adds no tip; a blank
/// line within is one.
QStringList tipLines(const QString &text);

/// 1-based index of the tip that a random number in [0, 1) draws; each tip is as likely as any other.
int drawTip(double random, int count);

/// What the form says in place of a tip if there is no tip file.
QString tipInstructions();

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// The lines of a tip file, one tip each, in the order of the file. A line end after the last line adds no tip, but a
/// blank line before it counts as one.
QStringList tipLines(const QString &text);

/// 1-based index of the tip for a random number in [0, 1); all tips are equally likely.
int drawTip(double random, int count);

/// The text of the form if there is no tip file.
QString tipInstructions();

} // namespace zephira

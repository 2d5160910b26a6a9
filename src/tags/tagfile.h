// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The captions in the lines of tags.dat: each line unchanged, including blanks at its ends, except for lines that are
/// empty or blank.
QStringList tagCaptions(const QStringList &lines);

} // namespace zephira

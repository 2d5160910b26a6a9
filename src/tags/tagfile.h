// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

/// The captions that the lines of tags.dat give: each line as it is, blanks at its ends included, but for those that
/// are empty or hold nothing but blanks.
QStringList tagCaptions(const QStringList &lines);

} // namespace zephira

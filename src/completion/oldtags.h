// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace zephira {

/// Tags and attributes that HTML had once and that old pages use, as lines of the completion's data file. A tag that HTML
/// still has appears with the attributes that it has lost.
QByteArrayView oldTagLines();

} // namespace zephira

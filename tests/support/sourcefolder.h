// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The full path of a file or folder of the source tree, given relative to its root. The root is compiled into one
/// source only, so that the compiler cache serves all others in any checkout.
QString sourcePath(const QString &path);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The path of a target relative to a base folder, with forward slashes, as written in links. Both are full paths; both
/// "\" and "/" are separators, and the base ends in one. The comparison is case-sensitive. If the paths have no common
/// start, the rest of the target from its second character is kept. An empty base raises HandlerError.
///
///     MakeRelativePath("C:\\a\\b\\", "C:\\a\\c\\x.htm") == "../c/x.htm"
QString MakeRelativePath(const QString &basePath, const QString &targetPath);

} // namespace zephira

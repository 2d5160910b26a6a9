// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The link text of a target, relative to a base, with forward slashes. Both are full paths; "\" and "/" divide folders
/// alike, and a base ends in a separator. The comparison is exact in case. Paths with no common start keep the rest
/// of the target from its second character. An empty base raises HandlerError.
///
///     MakeRelativePath("C:\\a\\b\\", "C:\\a\\c\\x.htm") == "../c/x.htm"
QString MakeRelativePath(const QString &basePath, const QString &targetPath);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The views of a file list, with their published numbers.
enum class FileListMode : int { LargeIcons, SmallIcons, List, Report };

} // namespace zephira

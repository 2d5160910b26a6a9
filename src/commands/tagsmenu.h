// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/quicktag.h"

#include <span>

namespace zephira {

/// The entries of the tag menu. `key` is the name of an entry, `label` its caption; all but the two that open the tag
/// editor write into the code view's selection.
std::span<const QuickTag> tagsMenu();

/// The entry with a name, or nullptr.
const QuickTag *findTagsEntry(const QString &name);

} // namespace zephira

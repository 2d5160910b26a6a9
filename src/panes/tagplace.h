// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

class EditingControl;

/// Index of a tag's `<`. That is `position` if the tag still begins there, else the nearest place where the same tag
/// stands; nothing where there is none. `tagText` is what stands between `<` and `>`. Indices count from 0.
std::optional<qsizetype> findTag(const QString &text, const QString &tagText, qsizetype position);

/// Selects the tag that findTag() finds in the code view, `<` and `>` included. Returns whether there was one.
bool selectTag(EditingControl &editor, const QString &tagText, qsizetype position);

} // namespace zephira

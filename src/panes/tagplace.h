// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

class EditingControl;

/// Index of a tag's `<`: `position` if the tag still begins there, else the nearest place with the same tag, or nothing if
/// there is none. `tagText` is the text between `<` and `>`. Indices are 0-based.
std::optional<qsizetype> findTag(const QString &text, const QString &tagText, qsizetype position);

/// Selects the tag found by findTag() in the code view, including `<` and `>`. Returns whether there was one.
bool selectTag(EditingControl &editor, const QString &tagText, qsizetype position);

} // namespace zephira

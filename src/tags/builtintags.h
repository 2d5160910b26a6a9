// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <span>

namespace zephira {

/// A tag that the tag tree always has.
struct BuiltInTag {
    /// What the tree shows and pastes.
    QStringView caption;
    QStringView key;
    /// Names in the order of the nodes, divided by blanks. One that takes no value has an exclamation mark in front.
    QStringView attributes;
};

/// All of them, in the order of the tree.
std::span<const BuiltInTag> builtInTags();

/// What the nodes of the tag's attributes show and paste: ` href=""`, or ` noresize` for one that takes no value.
QStringList attributeCaptions(const BuiltInTag &tag);

} // namespace zephira

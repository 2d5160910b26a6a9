// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <span>

namespace zephira {

/// A tag that is always in the tag tree.
struct BuiltInTag {
    /// The text that the tree shows and inserts.
    QStringView caption;
    QStringView key;
    /// Names in the order of the nodes, separated by blanks. An exclamation mark precedes those that take no value.
    QStringView attributes;
};

/// All of them, in the order of the tree.
std::span<const BuiltInTag> builtInTags();

/// The texts that the nodes of a tag's attributes show and insert: ` href=""`, or ` noresize` for one without a value.
QStringList attributeCaptions(const BuiltInTag &tag);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <span>

namespace zephira {

/// The fixed nodes of the document tree, in the order in which they are added. Leaves hang under all but Main.
enum class OutlineGroup {
    Main,
    Document,
    Declare,
    Title,
    Bookmarks,
    Comments,
    Divisions,
    Forms,
    Headings,
    Images,
    Layers,
    Links,
    Lists,
    Scripts,
    Styles,
    Tables,
    Other,
};

/// Numbers of the tree's pictures.
enum class OutlinePicture { Root = 1, Leaf = 2, Category = 3, Section = 4 };

/// A fixed node. Main is its own parent.
struct OutlineRoot {
    QStringView caption;
    QStringView key;
    OutlineGroup parent;
    OutlinePicture picture;
};

/// All seventeen, each at the index that is its OutlineGroup.
std::span<const OutlineRoot> outlineRoots();

/// A tag worth showing.
struct OutlineLeaf {
    OutlineGroup group = OutlineGroup::Other;
    QString caption;
    /// What stands between `<` and `>`; of a title, everything up to its closing tag.
    QString tagText;
    /// Index of the tag's `<`, the first character of the text is 0.
    qsizetype position = 0;
};

/// Gives `sink` the tags of a page, from the first to the last. It is one scan for `<` and `>`: markup of any kind is
/// taken as it comes, and nothing is nested. A comment or a title that is too short for its caption to be cut out, and a
/// title or an attribute that begins behind character 32767, raise HandlerError; the leaves before it have been given.
///
///     <body><a href=x>  gives  (Document, "BODY") and (Links, "x")
void scanOutline(const QString &documentText, const std::function<void(OutlineLeaf &&)> &sink);

/// The value of an attribute up to the next blank, without quotation marks. Where there is no such attribute, the inner
/// text comes back whole. The name is looked for as plain text and in any case, so that "id" is found in "valid=" too.
/// An attribute behind character 32767 raises HandlerError ("Overflow").
QString GetTagAttribute(const QString &attributeName, const QString &innerText);

} // namespace zephira

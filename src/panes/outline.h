// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <span>

namespace zephira {

/// The fixed nodes of the document tree, in the order in which they are added. All but Main can have leaves.
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

/// All seventeen, indexed by their OutlineGroup.
std::span<const OutlineRoot> outlineRoots();

/// A tag that the tree shows.
struct OutlineLeaf {
    OutlineGroup group = OutlineGroup::Other;
    QString caption;
    /// The text between `<` and `>`; for a title, everything up to its closing tag.
    QString tagText;
    /// 0-based index of the tag's `<` in the text.
    qsizetype position = 0;
};

/// Calls `sink` for the tags of a page in order. It is a single scan for `<` and `>`: any kind of markup is accepted,
/// and nesting is ignored. HandlerError is raised for a comment or title that is too short to extract its caption, and
/// for a title or attribute that begins after character 32767; the leaves before it have been passed to `sink`.
///
///     <body><a href=x>  gives  (Document, "BODY") and (Links, "x")
void scanOutline(const QString &documentText, const std::function<void(OutlineLeaf &&)> &sink);

/// The value of an attribute up to the next blank, without quotation marks. If there is no such attribute, the whole
/// inner text is returned. The name is searched as plain text without regard to case, so "id" is also found in
/// "valid=". An attribute after character 32767 raises HandlerError ("Overflow").
QString GetTagAttribute(const QString &attributeName, const QString &innerText);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

namespace zephira {

/// What stands at a place of the text, for completion.
enum class PlaceKind {
    None,          ///< nothing to complete: comments, server blocks, strings
    Words,         ///< text or code; the words of the document
    Tag,           ///< behind "<"
    ClosingTag,    ///< behind "</"
    Attribute,     ///< in a tag
    Value,         ///< the value of an attribute that no other kind is for
    File,          ///< a name in a link
    Entity,        ///< behind "&"
    Id,            ///< a reference to an element, behind "#" or in an attribute
    Class,         ///< behind "." in a selector or in class=""
    Property,      ///< in the block of a rule or in style=""
    PropertyValue, ///< behind ":"
    AtRule,        ///< with the "@"
    Pseudo,        ///< in a selector, with its colons
    Selector,      ///< the name of an element in a selector
};

/// Which rules a text follows.
enum class PlaceLanguage { Html, Xml, StyleSheet, Other };

/// A place of the text.
struct CompletionPlace {
    PlaceKind kind = PlaceKind::None;
    /// The offset of what is to be completed: from there up to the caret stands what has been typed of it.
    qsizetype start = 0;
    /// The tag around the place, in HTML in lower case.
    QByteArray tag = {};
    /// The attribute whose value it is, or the property, in lower case.
    QByteArray attribute = {};
    /// The attributes that the tag already has, or the words that the value already has.
    QByteArrayList taken = {};
    /// Elements that are open, the innermost first, each once. For a closing tag only.
    QByteArrayList open = {};
    /// Whether the value is between quotes.
    bool quoted = false;
    /// The part of a file's name before `start`, up to the last "/".
    QByteArray folder = {};
};

/// How far back a text is looked at.
inline constexpr qsizetype longestLookBack = 512 * 1024;

/// Finds out what stands at the end of a text.
/// @param before  the text before the caret, UTF-8
/// @param isCut   whether more stands before it. It may begin anywhere then, also in a comment or script.
CompletionPlace completionPlace(QByteArrayView before, PlaceLanguage language, bool isCut = false);

} // namespace zephira

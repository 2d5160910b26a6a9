// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace zephira {

/// A place in a page, told so that it can be found in the page's source as well as in the engine's page, which may have
/// more elements than the source has tags. It is counted from the last start tag before it; tags of elements that the
/// engine may split or add, or that show nothing, don't count. In the engine's page, caretplace.js does the same.
struct PagePlace {
    /// The name of that tag's element, in lower case; empty if the place is counted from the beginning of the body.
    QString anchor;
    /// How many elements of that name begin before it.
    qsizetype number = 0;
    /// How many characters of text, in UTF-16 code units, are between the tag and the place.
    qsizetype characters = 0;
    /// Where tags are between two characters: whether the place is behind these tags.
    bool isBehindTags = false;
    /// The name of the element that contains the place, if it is known: tags that end it aren't passed.
    QString parent = {};
    /// The first characters of the text behind the tag, without blanks, by which the element is known if the number is
    /// wrong.
    QString following = {};

    friend bool operator==(const PagePlace &, const PagePlace &) = default;
};

/// The place of a position in the source. Positions are 0-based UTF-16 code units. A position in a tag, a comment or
/// server code belongs to the text before it, one in a start tag to the beginning of its element. Takes time
/// proportional to the source's length.
PagePlace pagePlace(QStringView source, qsizetype position);

/// The position of a place in the source; nothing if there is no such element.
std::optional<qsizetype> positionOf(QStringView source, const PagePlace &place);

} // namespace zephira

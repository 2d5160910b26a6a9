// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// A replacement in a text: the characters from `begin` up to `end` become `text`. Positions are 0-based UTF-16 code
/// units of the text before all changes, `end` is exclusive.
struct TextChange {
    qsizetype begin = 0;
    qsizetype end = 0;
    QString text;

    friend bool operator==(const TextChange &, const TextChange &) = default;
};

/// Changes of one text in ascending order, none of which overlaps another.
using TextChanges = std::vector<TextChange>;

/// Whether the changes are in order, don't overlap and lie within a text of that length.
bool areInOrder(const TextChanges &changes, qsizetype length);

/// The text after the changes, which must be in order.
QString withChanges(QStringView text, const TextChanges &changes);

/// The change without the characters at its ends that stay the same. It never parts a CR from its LF or the two halves
/// of a character.
TextChange withoutSameEnds(QStringView text, const TextChange &change);

} // namespace zephira

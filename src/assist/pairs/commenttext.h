// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace zephira {

/// How a language marks comments.
struct CommentMarks {
    /// Begins a comment up to the line's end; empty if there is none.
    QByteArray line;
    /// Around any other comment; both are empty if there is none.
    QByteArray open;
    QByteArray close;

    bool isEmpty() const { return line.isEmpty() && open.isEmpty(); }
};

/// A change within a text: the bytes from `at` on, `size` of them, become `text`. Positions are those of the text before
/// any change. A caret at the place of an insertion is pushed behind it, or stays before it.
struct ByteChange {
    qsizetype at = 0;
    qsizetype size = 0;
    QByteArray text;
    bool pushesCaret = true;
};
using ByteChanges = std::vector<ByteChange>;

/// Puts a text between comment marks. What would end the comment inside is rewritten so that it doesn't, and
/// withoutComment() brings it back as it was.
ByteChanges intoComment(QByteArrayView text, const CommentMarks &marks);
/// Removes the marks from a text that is one comment; nothing if it isn't one.
std::optional<ByteChanges> withoutComment(QByteArrayView text, const CommentMarks &marks);

/// Begins each line that isn't blank with the mark, all in one column; or removes it where each of them begins with it.
/// A single blank line gets it too.
ByteChanges toggledLines(QByteArrayView lines, QByteArrayView mark);

/// The comment around a place: where its opening mark is found last before, without an end in between, and its end. Both
/// marks belong to it. Nothing if the place isn't between such marks.
struct ByteRange {
    qsizetype start = 0;
    qsizetype end = 0;
};
std::optional<ByteRange> commentAround(QByteArrayView text, qsizetype place, const CommentMarks &marks);

/// The text with these changes.
QByteArray changedText(QByteArrayView text, const ByteChanges &changes);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace zephira {

/// A place in a text, in UTF-16 code units. A length of 0 stands for no place.
struct TextPlace {
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    friend bool operator==(const TextPlace &, const TextPlace &) = default;
};

/// The first word at or after `from`, or no place.
///
/// A word begins with a letter and goes on with letters, accents, digits and single apostrophes between letters:
/// "don't", "h1", "x27". A number isn't a word, and the digits in front of a unit don't belong to it, so "10px" has the
/// word "px"; but "2nd" and its like are words. Everything else divides words, also the characters of markup.
TextPlace nextWord(QStringView text, qsizetype from);

/// A part of a text that shows a word in its sentence.
struct Excerpt {
    QString text;
    TextPlace word; ///< within the excerpt

    friend bool operator==(const Excerpt &, const Excerpt &) = default;
};

/// The sentence around a word. It ends at a full stop, exclamation or question mark in front of white space, and at an
/// empty line. Line ends, tabs and runs of blanks are shown as single blanks. Where the sentence goes on for long, it
/// is cut on that side, and a very long word is cut in its middle; "…" stands for what is left out.
Excerpt sentenceAround(QStringView text, TextPlace word);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/openelements.h"

#include <QByteArray>
#include <QByteArrayView>

#include <functional>
#include <optional>

namespace zephira {

/// How much of the text around a caret is read for a key at most, in bytes.
inline constexpr qsizetype pairReach = 64 * 1024;

/// What ends what a quote or an opening bracket begins; 0 for any other character.
char partnerOf(char32_t opener);
constexpr bool isQuote(char32_t character)
{
    return character == U'"' || character == U'\'';
}

/// Whether a bracket that is typed before such a byte (0 at the text's end), or a quote that is typed between two bytes,
/// gets its partner: nothing is put before a word, and an apostrophe is no quote.
bool closesBefore(char next);
bool closesQuote(char before, char next);

/// The start tag at the end of a text.
struct StartTag {
    qsizetype begin = 0; ///< of its "<", in bytes of the text
    QByteArray name;     ///< as it is written
};
/// The start tag that a text ends with, if it begins an element that has content. `isTag` tells whether a "<" at an offset
/// can begin a tag.
std::optional<StartTag> startTagBefore(QByteArrayView text, MarkupRules rules,
                                       const std::function<bool(qsizetype)> &isTag);

/// The name of the end tag that a text ends with; empty if there is none.
QByteArray endTagBefore(QByteArrayView text);

/// Whether a text begins with the end tag of an element.
bool beginsWithEndTag(QByteArrayView text, QByteArrayView name, MarkupRules rules);

/// The offset of the brace that the "}" behind a text ends; `isCode` tells whether the brace at an offset counts. -1 if
/// there is none.
qsizetype openBraceBefore(QByteArrayView text, const std::function<bool(qsizetype)> &isCode);

/// Whether the blanks in an element are shown as they are written, so that its lines aren't indented.
bool keepsBlanks(QByteArrayView name);

/// The blanks that a line begins with.
QByteArrayView indentationOf(QByteArrayView line);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

// The source formatter knows `<`, `>`, `</` and a few tag names. Scripts, comments and preformatted text are treated
// like everything else. Only character 32 counts as a blank, and only CR LF as a line end.

/// The text with each `find` replaced, in one pass from left to right: replacements aren't searched again. An empty
/// `find` replaces nothing.
QString ReplaceAll(const QString &text, const QString &find, const QString &replacement);

/// Removes blanks next to `<` and `>` with five replacements in sequence, each of which removes at most one blank of a
/// run: " >" by ">", "< " by "<", "> <" by "><", "> " by ">", " <" by "<".
QString TrimAroundTags(const QString &text);

/// The text without layout: line ends removed, tabs and up to 38 blanks in a row reduced to one blank, none next to
/// tags.
QString Compact(const QString &text);

/// The same, but each tag that directly follows another tag is on a line of its own.
QString Simple(const QString &text);

/// Called once for each piece of a text; returning false stops the run, whose truncated result must then be discarded.
using FormatterYield = std::function<bool()>;

/// The text without its own line ends and tabs, indented by one tab per level.
QString Hierarchical(const QString &text, const FormatterYield &yield = {});

/// Begins a line at each `<`, indented by one tab per open element. Whether a tag raises the level depends on the name
/// of the tag that follows it. If there is text before the first tag, that tag's `<` is doubled; pieces below level 0
/// are dropped. If levels are never closed, the size of the result grows with the square of the text; a result of more
/// than maximumFormattedLength characters raises HandlerError ("Out of string space").
QString IndentTags(const QString &text, const FormatterYield &yield = {});

/// The text from the first `<` after the 1-based position up to the next `>`. Raises HandlerError if there is no such
/// tag.
QString NextTagText(const QString &text, qsizetype position);

/// The name in a text like `<b>` or `<a href=x>`: "b", "a"; including the slash for a closing tag, and "!--" for a
/// comment. Raises HandlerError if neither a blank nor a `>` ends the name.
QString TagNameOf(const QString &tagText);

/// In UTF-16 code units.
constexpr qsizetype maximumFormattedLength = 256LL * 1024 * 1024;

} // namespace zephira

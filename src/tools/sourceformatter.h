// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

// The source formatter knows `<`, `>`, `</` and a few names of tags. Scripts, comments and preformatted text are treated
// like everything else. Blanks are the character 32 alone, line ends CR LF alone.

/// The text with each `find` replaced, in one pass from left to right: what a replacement brings isn't searched again.
/// An empty `find` replaces nothing.
QString ReplaceAll(const QString &text, const QString &find, const QString &replacement);

/// Takes blanks away beside `<` and `>`, as five replacements in a row do, each at most one of a run:
/// " >" by ">", "< " by "<", "> <" by "><", "> " by ">", " <" by "<".
QString TrimAroundTags(const QString &text);

/// The text without layout: line ends removed, tabs and up to 38 blanks in a row made one blank, none beside tags.
QString Compact(const QString &text);

/// The same with each tag on a line of its own that directly follows another tag.
QString Simple(const QString &text);

/// Is called once for each piece of a text; false ends the run, whose result is then cut off and of no use.
using FormatterYield = std::function<bool()>;

/// The text without its own line ends and tabs, indented by one tab a level.
QString Hierarchical(const QString &text, const FormatterYield &yield = {});

/// Begins a line at each `<`, with as many tabs as elements are open. Whether a tag raises the level is decided by the
/// name of the one that follows it. Text ahead of the first tag leaves that tag's `<` doubled, and pieces below level 0
/// are lost. Levels that never come down again make a result that grows with the square of the text; one of more than
/// maximumFormattedLength characters raises HandlerError ("Out of string space").
QString IndentTags(const QString &text, const FormatterYield &yield = {});

/// From the first `<` after the 1-based position up to the first `>` after that. Raises HandlerError where there is no
/// such tag.
QString NextTagText(const QString &text, qsizetype position);

/// The name in a text like `<b>` or `<a href=x>`: "b", "a"; of a closing tag with its slash, of a comment "!--". Raises
/// HandlerError where neither a blank nor a `>` ends the name.
QString TagNameOf(const QString &tagText);

/// In UTF-16 code units.
constexpr qsizetype maximumFormattedLength = 256LL * 1024 * 1024;

} // namespace zephira

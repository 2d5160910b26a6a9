// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

namespace zephira {

/// The margins left of the text and the marks on lines: bookmarks, the highlighted line, dividers, folds.
class EditorMargins
{
public:
    /// From left to right.
    enum Margin { Bookmarks, LineNumbers, Folds, Divider };

    explicit EditorMargins(SciEngine engine);

    void setLeftMargin(bool on);
    bool leftMargin() const { return m_leftMargin; }
    void setLineNumbers(bool on);
    bool lineNumbers() const { return m_lineNumbers; }
    void setFolds(bool on);
    /// Adapts the widths to the number of lines and the font size.
    void updateWidths();
    /// The total width of all margins, in pixels.
    qsizetype width() const;

    /// Highlights the background of a 0-based line; none for -1 or a line that doesn't exist.
    void setHighlightedLine(qsizetype line);
    qsizetype highlightedLine() const { return m_highlighted; }
    /// Draws or removes the thin divider below a line that ends an outermost block.
    void setDivider(qsizetype line, bool on);

    void toggleBookmark(qsizetype line);
    /// The nearest bookmarked line after or before the given one, wrapping around at the ends of the text; -1 if there
    /// is none.
    qsizetype bookmarkFrom(qsizetype line, bool backward) const;

private:
    void setMark(qsizetype line, int marker, bool on);

    SciEngine m_engine;
    bool m_leftMargin = false;
    bool m_lineNumbers = true;
    bool m_folds = true;
    qsizetype m_highlighted = -1;
};

} // namespace zephira

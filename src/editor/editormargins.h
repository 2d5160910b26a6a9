// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

namespace zephira {

/// The strips left of the text, and the marks that lines bear: bookmarks, the highlighted line, dividers, folds.
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
    /// Fits the widths to the number of lines and to the size of the font.
    void updateWidths();
    /// Of all margins together, in pixels.
    qsizetype width() const;

    /// Draws the line behind the text of a 0-based line, none for -1 and for lines that the text doesn't have.
    void setHighlightedLine(qsizetype line);
    qsizetype highlightedLine() const { return m_highlighted; }
    /// Draws, or takes away, the thin line below a line that ends an outermost block.
    void setDivider(qsizetype line, bool on);

    void toggleBookmark(qsizetype line);
    /// The nearest bookmarked line behind or in front of the given one, round the ends of the text; -1 if there is none.
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

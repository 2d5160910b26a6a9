// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// Options for editing and display that are not properties of the control.
struct EditorOptions {
    int tabWidth = 4; ///< columns, 1 to 32
    bool tabsAsBlanks = false;
    bool autoIndent = true;
    bool wordWrap = false;
    bool foldMargin = true;
    bool matchBraces = true;
    bool highlightCaretLine = false; ///< in the highlighted line's colour
    int edgeColumn = 0;              ///< a vertical line is drawn after this column; 0 for none

    friend bool operator==(const EditorOptions &, const EditorOptions &) = default;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// What must be the case for a row of a menu or toolbar to be enabled. Whoever knows that something has changed opens
/// and closes all rows that need it. A row needs at most one thing, so no two reports contradict each other.
enum class Need {
    Nothing,
    Markup,     ///< a language that the markup tools are for
    SourceView, ///< the code view
    VisualView, ///< the designer
    /// For the quick tags of the menu bar, the later of two: the choice of a language opens them for markup in the code
    /// view, and the return to the code view opens them in any language.
    QuickTags,
    ListedFile, ///< a file that is selected in the file list
    PageText,   ///< in the designer: no element is selected as a whole
    Plugin,     ///< a plug-in that was found
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFlags>

namespace zephira {

/// What must be the case for a row of a menu or toolbar to be enabled. Whoever knows that something has changed opens
/// and closes all rows that need it.
enum class Need {
    Markup = 1,     ///< a language that the markup tools are for
    SourceView = 2, ///< the code view
    VisualView = 4, ///< the designer
    ListedFile = 8, ///< a file that is selected in the file list
    PageText = 16,  ///< in the designer: no element is selected as a whole
};
Q_DECLARE_FLAGS(Needs, Need)
Q_DECLARE_OPERATORS_FOR_FLAGS(Needs)

} // namespace zephira

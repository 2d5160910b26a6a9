// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/colourtable.h"
#include "core/editingcontrol.h"

#include <QStringList>

namespace zephira {

/// The five display options of the configuration, kept while the process runs.
struct DisplayModes {
    int highlight = 0;
    int lineNumber = 0;
    int leftMargin = 0;
    int whitespace = 0;
    int selBounds = 0;
};

/// The state of the main window that isn't kept in its parts.
struct WindowState {
    DisplayModes modes;
    ColourTable colours;
    /// The code view's selection at its last change, with its start before its end.
    CodeMaxRange selection;
    bool rootSelect = false;
    /// Names of the start steps, in the order in which they ran.
    QStringList startSteps;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "assist/abbreviations/abbreviationengine.h"
#include "tools/tidyengine.h"

#include <QString>

#include <functional>

namespace zephira {

/// What the helpers need besides what every form gets. What is missing isn't offered.
struct TextServices {
    AbbreviationLoader loadAbbreviations;
    TidyEngineLoader loadTidy;
    /// Shows a sentence in the status bar for a while.
    std::function<void(const QString &)> notice = [](const QString &) {};
    /// Brings the code view to the front.
    std::function<void()> showCode = [] {};
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The engine's indicator numbers. The last two are for problems that are found in the text; their values are for whoever
/// finds them.
enum Indicator : int {
    BraceIndicator = 8,
    BoundsIndicator,
    StrikeIndicator,
    MatchIndicator,
    ErrorIndicator,
    WarningIndicator
};

} // namespace zephira

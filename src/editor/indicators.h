// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The engine's indicator numbers used by the control.
enum Indicator : int { BraceIndicator = 8, BoundsIndicator, StrikeIndicator, MatchIndicator };

} // namespace zephira

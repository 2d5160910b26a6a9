// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// The engine's numbers for what is drawn around stretches of text.
enum Indicator : int { BraceIndicator = 8, BoundsIndicator, StrikeIndicator, MatchIndicator };

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// Switches off what the engine offers to pages but doesn't show to a page's fence: workers that several pages share, whose
/// sockets it would not see, and transports. To be called before the engine starts, that is before its first profile.
void closeUnfencedFeatures();

} // namespace zephira

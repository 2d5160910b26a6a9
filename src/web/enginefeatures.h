// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Switches off what the engine offers to pages but doesn't show to a page's fence: workers that several pages share, whose
/// sockets it would not see, transports, and connections to peers. This goes for all pages, because a frame gets its window
/// before anyone can know whose page it is in. To be called before the engine starts, that is before its first profile.
void closeUnfencedFeatures();

/// Takes from a document the names that closed features leave behind, so that its scripts see that there are none. It is for
/// the page's own world, before its scripts.
QString closedFeaturesScript();

} // namespace zephira

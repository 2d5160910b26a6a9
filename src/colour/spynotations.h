// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/colournotations.h"

namespace zephira {

/// The colour that the spy shows for a page: "#" and the three channels in hexadecimal. Only a channel of 0 is written
/// with two digits; any other value below 16 has only one.
QString spyNotation(const Channels &channels);

} // namespace zephira

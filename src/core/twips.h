// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace zephira {

// Twips are the unit of stored window positions and of some measures of forms.

constexpr int twipsPerPixel = 15;

constexpr int toTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

/// The nearest number of whole pixels.
constexpr int toPixels(int twips)
{
    return qRound(twips / static_cast<double>(twipsPerPixel));
}

} // namespace zephira

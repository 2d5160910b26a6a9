// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

namespace zephira {

/// The positions and sizes of the object browser's parts, in pixels.
struct ObjectBrowserLayout {
    QRect tree;
    /// Left edge of the two buttons, and the width that is left for them.
    int buttonLeft = 0;
    int buttonWidth = 0;
};

/// The layout for the inner size of the form, in pixels of 15 twips like the result. The tree leaves more than its usual
/// room beside it when captions in large letters need wider buttons. No part gets a negative size, however small the form
/// is.
ObjectBrowserLayout objectBrowserLayout(const QSize &form, int leastButtonWidth = 0);

} // namespace zephira

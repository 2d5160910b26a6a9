// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

namespace zephira {

/// Where the parts of the object browser go, in pixels.
struct ObjectBrowserLayout {
    QRect tree;
    /// Left edge of the two buttons, and the width that is left for them.
    int buttonLeft = 0;
    int buttonWidth = 0;
};

/// For the inner size of the form, which is in pixels of 15 twips, as the measures of the layout are. No part gets a
/// negative size, however small the form.
ObjectBrowserLayout objectBrowserLayout(const QSize &form);

} // namespace zephira

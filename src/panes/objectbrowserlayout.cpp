// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/objectbrowserlayout.h"

namespace zephira {

namespace {

constexpr int twipsPerPixel = 15;
// The form's measures, in twips.
constexpr int treeOffset = 30;
constexpr int besideTree = 1450;
constexpr int belowTree = 50;
constexpr int gap = 120;

constexpr int toTwips(int pixels)
{
    return pixels * twipsPerPixel;
}

int toPixels(int twips)
{
    return qRound(qMax(twips, 0) / double(twipsPerPixel));
}

} // namespace

ObjectBrowserLayout objectBrowserLayout(const QSize &form)
{
    const int width = toTwips(form.width()) - besideTree;
    const int height = toTwips(form.height()) - belowTree;
    const int buttons = treeOffset + qMax(width, 0) + gap;
    return {.tree = {toPixels(treeOffset), toPixels(treeOffset), toPixels(width), toPixels(height)},
            .buttonLeft = toPixels(buttons),
            .buttonWidth = toPixels(toTwips(form.width()) - buttons - treeOffset)};
}

} // namespace zephira

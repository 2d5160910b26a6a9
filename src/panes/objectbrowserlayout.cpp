// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/objectbrowserlayout.h"

#include "core/twips.h"

namespace zephira {

namespace {

// The form's measures, in twips.
constexpr int treeOffset = 30;
constexpr int besideTree = 1450;
constexpr int belowTree = 50;
constexpr int gap = 120;

int pixelsOrNone(int twips)
{
    return toPixels(qMax(twips, 0));
}

} // namespace

ObjectBrowserLayout objectBrowserLayout(const QSize &form, int leastButtonWidth)
{
    const int beside = qMax(besideTree, treeOffset + gap + toTwips(leastButtonWidth) + treeOffset);
    const int width = toTwips(form.width()) - beside;
    const int height = toTwips(form.height()) - belowTree;
    const int buttons = treeOffset + qMax(width, 0) + gap;
    return {.tree = {toPixels(treeOffset), toPixels(treeOffset), pixelsOrNone(width), pixelsOrNone(height)},
            .buttonLeft = toPixels(buttons),
            .buttonWidth = pixelsOrNone(toTwips(form.width()) - buttons - treeOffset)};
}

} // namespace zephira

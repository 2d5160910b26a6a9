// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/live/livepace.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype large = 500'000;
constexpr qsizetype huge = 5'000'000;
/// The engine doesn't show pages smaller than this.
constexpr double smallestZoom = 0.25;

} // namespace

LivePace livePace(qsizetype size)
{
    if (size > huge)
        return {{},
                QCoreApplication::translate("LivePace",
                                            "This page is very large: it is shown when it is saved or reloaded.")};
    if (size > large)
        return {2000,
                QCoreApplication::translate(
                    "LivePace", "This page is large: it is shown again two seconds after the last change.")};
    return {250, {}};
}

LiveFit liveFit(int panelWidth, int width)
{
    if (width <= 0)
        return {panelWidth, 1};
    if (width <= panelWidth)
        return {width, 1};
    return {panelWidth, std::max(smallestZoom, static_cast<double>(panelWidth) / width)};
}

} // namespace zephira

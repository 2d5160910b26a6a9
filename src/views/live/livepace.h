// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/translation.h"

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace zephira {

/// How a live page follows a text of some size.
struct LivePace {
    /// Milliseconds from the last change of the text until it is shown; nothing if it waits until the text is saved.
    std::optional<int> pause;
    /// What the user is told; empty while it follows at once.
    QString notice;
};

/// @param size  of the text, in characters
LivePace livePace(qsizetype size);

/// A width in which a page can be looked at.
struct LiveWidth {
    QStringView caption;
    /// In pixels of the page; 0 for that of the panel, -1 for one that the user enters.
    int width;
};

constexpr std::array<LiveWidth, 5> liveWidths{{
    {ZEPHIRA_TEXT("LivePace", "Full width"), 0},
    {ZEPHIRA_TEXT("LivePace", "Phone (375)"), 375},
    {ZEPHIRA_TEXT("LivePace", "Tablet (768)"), 768},
    {ZEPHIRA_TEXT("LivePace", "Desktop (1280)"), 1280},
    {ZEPHIRA_TEXT("LivePace", "Other width"), -1},
}};

/// How a page of a width fits into a panel: the width of its view in pixels, and how large the page is shown. A page that is
/// wider than the panel is made smaller.
struct LiveFit {
    int viewWidth = 0;
    double zoom = 1;

    friend bool operator==(const LiveFit &, const LiveFit &) = default;
};

/// @param width  of the page; 0 for that of the panel
LiveFit liveFit(int panelWidth, int width);

} // namespace zephira

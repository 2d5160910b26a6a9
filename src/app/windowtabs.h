// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

class QTabBar;

namespace zephira {

/// A tab of the side pane or of the workspace.
struct WindowTab {
    QStringView key;
    QStringView caption;
    QStringView tip;
    QStringView icon;
};

/// The twelve tabs of `Frame1`; the six custom tabs have only a picture.
std::span<const WindowTab> sideTabs();
/// The three tabs of `workspace`.
std::span<const WindowTab> workspaceTabs();
/// Pull-down entries whose only effect is to select a tab that is closed.
std::span<const QStringView> commandsOfClosedTabs();

/// Closes a tab whose page isn't there yet and says so in its tip.
void closeTab(QTabBar &bar, int index);

} // namespace zephira

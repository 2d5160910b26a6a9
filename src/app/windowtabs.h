// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

namespace zephira {

/// A tab of the side pane or of the workspace.
struct WindowTab {
    QStringView key;
    QStringView caption;
    QStringView tip;
    QStringView icon;
};

/// The twelve tabs of `Frame1` in the order of SideTab; the six custom tabs have only an icon.
std::span<const WindowTab> sideTabs();
/// The three tabs of `workspace`.
std::span<const WindowTab> workspaceTabs();

} // namespace zephira

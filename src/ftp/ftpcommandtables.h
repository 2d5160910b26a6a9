// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace zephira {

/// An entry of the FTP window's menus, or a menu if it has children.
struct FtpMenuItem {
    enum class Kind { Command, Check };

    QStringView name;
    QStringView caption;
    /// Name of an icon of the theme, or empty.
    QStringView icon = {};
    Kind kind = Kind::Command;
    std::span<const FtpMenuItem> children = {};
};

/// The menu bar.
std::span<const FtpMenuItem> ftpMenus();

/// A button of the tool bar, which triggers a menu entry.
struct FtpToolKey {
    QStringView key;
    QStringView entry;
    QStringView tip;
    /// The side that it acts on, which is shown by a mark on its picture.
    enum class Side { None, Local, Server } side = Side::None;
    /// Text beside the picture, or empty.
    QStringView label = {};
    /// What does the same in the list that it acts on, or empty.
    QStringView pressed = {};
};

/// The tool bar has two groups: the connection with the local side, and the server's side.
std::span<const FtpToolKey> localToolKeys();
std::span<const FtpToolKey> remoteToolKeys();

} // namespace zephira

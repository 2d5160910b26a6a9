// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <span>
#include <variant>

namespace zephira {

class FtpConnection;
class FtpWindowCommands;
class LocalCommands;
class RemoteCommands;
enum class FileListMode : int;

/// Shows the files of one side in one of the views.
struct ShowsFiles {
    void (FtpWindowCommands::*show)(FileListMode) = nullptr;
    FileListMode view = {};

    friend bool operator==(const ShowsFiles &, const ShowsFiles &) = default;
};

/// Sets the session's transfer type.
struct SetsTransferType {
    bool binary = true;

    friend bool operator==(const SetsTransferType &, const SetsTransferType &) = default;
};

/// What an entry of the FTP window does: an operation of one of its sides, of the connection or of the window, or one
/// of the kinds above.
using FtpEffect = std::variant<std::monostate, void (LocalCommands::*)(), void (RemoteCommands::*)(),
                               void (FtpConnection::*)(), void (FtpWindowCommands::*)(), ShowsFiles, SetsTransferType>;

/// An entry of the FTP window's menus, or a menu if it has children.
struct FtpMenuItem {
    enum class Kind { Command, Check };

    QStringView name;
    QStringView caption;
    /// Name of an icon of the theme, or empty.
    QStringView icon = {};
    /// What choosing the entry does. A menu has none.
    FtpEffect effect = {};
    Kind kind = Kind::Command;
    std::span<const FtpMenuItem> children = {};
};

constexpr bool hasEffect(const FtpMenuItem &item)
{
    return !std::holds_alternative<std::monostate>(item.effect);
}

/// The menu bar.
std::span<const FtpMenuItem> ftpMenus();

/// The menus and entries that the window refers to.
namespace ftpname {
inline constexpr QStringView localMenu = u"zLocal";
inline constexpr QStringView remoteMenu = u"zRemote";
inline constexpr QStringView properties = u"zProperties";
inline constexpr QStringView allLocalFiles = u"zAll";
inline constexpr QStringView definedLocalFiles = u"zDefine";
inline constexpr QStringView allRemoteFiles = u"zAll2";
inline constexpr QStringView definedRemoteFiles = u"zDefine2";
inline constexpr QStringView binary = u"zBinary";
inline constexpr QStringView ascii = u"zAscii";
inline constexpr QStringView passive = u"zPassive";
inline constexpr QStringView toolBar = u"zTools";
} // namespace ftpname

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

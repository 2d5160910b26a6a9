// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpcommandtables.h"

#include "ftp/ftpconnection.h"
#include "ftp/ftpwindowcommands.h"
#include "ftp/localcommands.h"
#include "ftp/remotecommands.h"
#include "widgets/filelistmode.h"

#include <string_view>

namespace zephira {

namespace {

using Kind = FtpMenuItem::Kind;

constexpr FtpMenuItem menu(QStringView name, QStringView caption, std::span<const FtpMenuItem> children)
{
    return {name, caption, {}, {}, Kind::Command, children};
}

/// An entry whose command sets its check mark.
constexpr FtpMenuItem check(QStringView name, QStringView caption, const FtpEffect &effect)
{
    return {name, caption, {}, effect, Kind::Check};
}

constexpr FtpMenuItem fileMenu[] = {
    {u"zOpen", u"&Open log", u"document-open", &FtpWindowCommands::openLogs},
    {u"zSave", u"&Save log", u"document-save", &FtpWindowCommands::saveLog},
    {u"zConnect", u"&Connect to Server", u"network-connect", &FtpWindowCommands::chooseSite},
    {u"zDisconnect", u"&Discinnect from Server", u"network-disconnect", &FtpConnection::disconnectFromServer},
    {u"zOdpojit", u"&End connection", u"call-stop", &FtpConnection::hangUp},
    {u"zEnd", u"Cl&ose", u"window-close", &FtpWindowCommands::closeWindow},
};

constexpr FtpMenuItem localPatternMenu[] = {
    check(ftpname::allLocalFiles, u"&All files (*.*)", &LocalCommands::patternAll),
    check(ftpname::definedLocalFiles, u"&Define types (*.?)", &LocalCommands::patternDefined),
};

constexpr FtpMenuItem localMenu[] = {
    {u"zLokRef", u"&Refresh", u"view-refresh", &LocalCommands::refill},
    {u"zOpenFile", u"&Open File", u"document-open", &LocalCommands::openFile},
    {u"zLokUp", u"&Upload", u"go-up", &LocalCommands::upload},
    {u"zLokNF", u"&New Folder", u"folder-new", &LocalCommands::newFolder},
    {u"zLokDF", u"&Remove Folder", u"edit-delete-remove", &LocalCommands::removeFolder},
    {u"zLokDS", u"&Delete File", u"edit-delete", &LocalCommands::deleteFiles},
    {u"zLokRS", u"Rename &File", u"edit-rename", &LocalCommands::rename},
    menu(u"zPat", u"Pa&ttern", localPatternMenu),
    {u"zFind", u"Fin&d File", u"edit-find", &LocalCommands::findFile},
    {ftpname::properties, u"&Properties", u"document-properties", &LocalCommands::showProperties},
};

constexpr FtpMenuItem remotePatternMenu[] = {
    check(ftpname::allRemoteFiles, u"&All files (*.*)", &RemoteCommands::patternAll),
    check(ftpname::definedRemoteFiles, u"&Define types (*.?)", &RemoteCommands::patternDefined),
};

constexpr FtpMenuItem remoteMenu[] = {
    {u"zRemRef", u"&Refresh", u"view-refresh", &RemoteCommands::refresh},
    {u"zRemDown", u"&Download", u"go-down", &RemoteCommands::download},
    {u"zRemNF", u"&New Folder", u"folder-new", &RemoteCommands::newFolder},
    {u"zRemDF", u"Rem&ove Folder", u"edit-delete-remove", &RemoteCommands::removeFolder},
    {u"zRemDS", u"&Delete File", u"edit-delete", &RemoteCommands::deleteFiles},
    {u"zRemRS", u"Ren&ame File", u"edit-rename", &RemoteCommands::rename},
    menu(u"zPat2", u"Pa&ttern", remotePatternMenu),
};

constexpr FtpMenuItem localViewMenu[] = {
    {u"ztBigIc", u"&Big Icons", u"view-list-icons",
     ShowsFiles{&FtpWindowCommands::showLocalFiles, FileListMode::LargeIcons}},
    {u"ztSmallIc", u"&Small Icons", u"view-list-details",
     ShowsFiles{&FtpWindowCommands::showLocalFiles, FileListMode::SmallIcons}},
    {u"ztSeznam", u"&List", u"view-list-text", ShowsFiles{&FtpWindowCommands::showLocalFiles, FileListMode::List}},
    {u"ztReport", u"&Report", u"view-list-tree", ShowsFiles{&FtpWindowCommands::showLocalFiles, FileListMode::Report}},
};

constexpr FtpMenuItem remoteViewMenu[] = {
    {u"zsBigIc", u"&Big Icons", u"view-list-icons",
     ShowsFiles{&FtpWindowCommands::showRemoteFiles, FileListMode::LargeIcons}},
    {u"zsSmallIc", u"&Small Icons", u"view-list-details",
     ShowsFiles{&FtpWindowCommands::showRemoteFiles, FileListMode::SmallIcons}},
    {u"zsSeznam", u"&List", u"view-list-text", ShowsFiles{&FtpWindowCommands::showRemoteFiles, FileListMode::List}},
    {u"zsReport", u"&Report", u"view-list-tree", ShowsFiles{&FtpWindowCommands::showRemoteFiles, FileListMode::Report}},
};

constexpr FtpMenuItem transferMenu[] = {
    check(ftpname::binary, u"&Binary", SetsTransferType{true}),
    check(ftpname::ascii, u"&ASCII", SetsTransferType{false}),
    check(ftpname::passive, u"&Pasive mode", &FtpWindowCommands::togglePassive),
};

constexpr FtpMenuItem toolsMenu[] = {
    menu(u"zTento", u"&Local", localViewMenu),
    menu(u"zServer", u"&Server", remoteViewMenu),
    menu(u"zTransf", u"&Transfer", transferMenu),
    check(ftpname::toolBar, u"S&how Toolbar", &FtpWindowCommands::toggleToolBar),
};

constexpr FtpMenuItem menus[] = {
    menu(u"zSoubor", u"&File", fileMenu),
    menu(ftpname::localMenu, u"&Local", localMenu),
    menu(ftpname::remoteMenu, u"&Remote", remoteMenu),
    menu(u"zNast", u"&Tools", toolsMenu),
};

/// Each entry has an effect, and no menu has one.
constexpr bool eachEntryActs(std::span<const FtpMenuItem> items)
{
    for (const FtpMenuItem &item : items) {
        if (hasEffect(item) != item.children.empty() || !eachEntryActs(item.children))
            return false;
    }
    return true;
}

static_assert(eachEntryActs(menus));

using enum FtpToolKey::Side;

constexpr FtpToolKey localKeys[] = {
    {u"Connect", u"zConnect", u"Connect to a server"},
    {u"Disconnect", u"zDisconnect", u"Disconnect from the server"},
    {u"Reload", u"zLokRef", u"Read the local folder again", Local},
    {u"Upload", u"zLokUp", u"Upload the selected files", Local, u"Upload"},
    {u"NewFolder", u"zLokNF", u"Create a folder here", Local},
    {u"DelFolder", u"zLokDF", u"Remove the local folder", Local, {}, u"Del"},
    {u"DelFile", u"zLokDS", u"Delete the selected local files", Local, {}, u"Del"},
    {u"Rename", u"zLokRS", u"Rename the selected local file", Local, {}, u"F2"},
};

constexpr FtpToolKey remoteKeys[] = {
    {u"Reload2", u"zRemRef", u"Read the server's folder again", Server},
    {u"DownLoad", u"zRemDown", u"Download the selected files", Server, u"Download"},
    {u"NewFolder2", u"zRemNF", u"Create a folder on the server", Server},
    {u"DelFolder2", u"zRemDF", u"Remove the server's folder", Server, {}, u"Del"},
    {u"DelFile2", u"zRemDS", u"Delete the selected files on the server", Server, {}, u"Del"},
    {u"Rename2", u"zRemRS", u"Rename the selected file on the server", Server, {}, u"F2"},
};

constexpr std::u16string_view plain(QStringView text)
{
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

constexpr bool hasEntry(std::span<const FtpMenuItem> items, QStringView name)
{
    for (const FtpMenuItem &item : items) {
        if ((item.children.empty() && plain(item.name) == plain(name)) || hasEntry(item.children, name))
            return true;
    }
    return false;
}

constexpr bool eachKeyHasItsEntry(std::span<const FtpToolKey> keys)
{
    for (const FtpToolKey &key : keys) {
        if (!hasEntry(menus, key.entry))
            return false;
    }
    return true;
}

static_assert(eachKeyHasItsEntry(localKeys) && eachKeyHasItsEntry(remoteKeys));

} // namespace

std::span<const FtpMenuItem> ftpMenus()
{
    return menus;
}

std::span<const FtpToolKey> localToolKeys()
{
    return localKeys;
}

std::span<const FtpToolKey> remoteToolKeys()
{
    return remoteKeys;
}

} // namespace zephira

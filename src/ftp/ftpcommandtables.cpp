// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpcommandtables.h"

namespace zephira {

namespace {

using enum FtpMenuItem::Kind;

constexpr FtpMenuItem fileMenu[] = {
    {u"zOpen", u"&Open log", u"document-open"},
    {u"zSave", u"&Save log", u"document-save"},
    {u"zConnect", u"&Connect to Server", u"network-connect"},
    {u"zDisconnect", u"&Discinnect from Server", u"network-disconnect"},
    {u"zOdpojit", u"&End connection", u"call-stop"},
    {u"zEnd", u"Cl&ose", u"window-close"},
};

constexpr FtpMenuItem localPatternMenu[] = {
    {u"zAll", u"&All files (*.*)", {}, Check},
    {u"zDefine", u"&Define types (*.?)", {}, Check},
};

constexpr FtpMenuItem localMenu[] = {
    {u"zLokRef", u"&Refresh", u"view-refresh"},
    {u"zOpenFile", u"&Open File", u"document-open"},
    {u"zLokUp", u"&Upload", u"go-up"},
    {u"zLokNF", u"&New Folder", u"folder-new"},
    {u"zLokDF", u"&Remove Folder", u"edit-delete-remove"},
    {u"zLokDS", u"&Delete File", u"edit-delete"},
    {u"zLokRS", u"Rename &File", u"edit-rename"},
    {u"zPat", u"Pa&ttern", {}, Command, localPatternMenu},
    {u"zFind", u"Fin&d File", u"edit-find"},
    {u"zProperties", u"&Properties", u"document-properties"},
};

constexpr FtpMenuItem remotePatternMenu[] = {
    {u"zAll2", u"&All files (*.*)", {}, Check},
    {u"zDefine2", u"&Define types (*.?)", {}, Check},
};

constexpr FtpMenuItem remoteMenu[] = {
    {u"zRemRef", u"&Refresh", u"view-refresh"},
    {u"zRemDown", u"&Download", u"go-down"},
    {u"zRemNF", u"&New Folder", u"folder-new"},
    {u"zRemDF", u"Rem&ove Folder", u"edit-delete-remove"},
    {u"zRemDS", u"&Delete File", u"edit-delete"},
    {u"zRemRS", u"Ren&ame File", u"edit-rename"},
    {u"zPat2", u"Pa&ttern", {}, Command, remotePatternMenu},
};

constexpr FtpMenuItem localViewMenu[] = {
    {u"ztBigIc", u"&Big Icons", u"view-list-icons"},
    {u"ztSmallIc", u"&Small Icons", u"view-list-details"},
    {u"ztSeznam", u"&List", u"view-list-text"},
    {u"ztReport", u"&Report", u"view-list-tree"},
};

constexpr FtpMenuItem remoteViewMenu[] = {
    {u"zsBigIc", u"&Big Icons", u"view-list-icons"},
    {u"zsSmallIc", u"&Small Icons", u"view-list-details"},
    {u"zsSeznam", u"&List", u"view-list-text"},
    {u"zsReport", u"&Report", u"view-list-tree"},
};

constexpr FtpMenuItem transferMenu[] = {
    {u"zBinary", u"&Binary", {}, Check},
    {u"zAscii", u"&ASCII", {}, Check},
    {u"zPassive", u"&Pasive mode", {}, Check},
};

constexpr FtpMenuItem toolsMenu[] = {
    {u"zTento", u"&Local", {}, Command, localViewMenu},
    {u"zServer", u"&Server", {}, Command, remoteViewMenu},
    {u"zTransf", u"&Transfer", {}, Command, transferMenu},
    {u"zTools", u"S&how Toolbar", {}, Check},
};

constexpr FtpMenuItem menus[] = {
    {u"zSoubor", u"&File", {}, Command, fileMenu},
    {u"zLocal", u"&Local", {}, Command, localMenu},
    {u"zRemote", u"&Remote", {}, Command, remoteMenu},
    {u"zNast", u"&Tools", {}, Command, toolsMenu},
};

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

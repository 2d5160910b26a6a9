// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QUrl>

namespace zephira {

/// Whether an address leads over the network, be it to this very machine.
bool isRemote(const QUrl &address);

/// The host of an address as people name it, with its port where that isn't the usual one.
///
///     remoteHost("https://cdn.example.org/a.css") == "cdn.example.org"
///     remoteHost("http://localhost:8080/a.css") == "localhost:8080"
QString remoteHost(const QUrl &address);

/// Who shows a page.
enum class RemoteUse {
    Browser,  ///< as browsers do
    Designer, ///< to edit it: how it looks is wanted, nothing else
};

/// What is loaded, as far as that makes a difference.
enum class RemoteKind {
    Look, ///< a style sheet, a picture or a font
    Other,
};

struct RemoteRequest {
    QUrl address;
    /// The page in the window that the engine asks for; empty where it can't tell.
    QUrl page;
    RemoteKind kind = RemoteKind::Other;
};

/// Whether a request may go to another machine. A page of this machine asks nobody until the user has allowed it; one that
/// came over the network itself is free. `isLocal` says which of them shows.
bool mayGoOut(const RemoteRequest &request, RemoteUse use, bool isLocal, bool isAllowed);

} // namespace zephira

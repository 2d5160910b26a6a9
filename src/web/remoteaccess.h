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

/// What a page is shown for.
enum class RemoteUse {
    Browser,  ///< to see it as in any browser
    Designer, ///< to edit it: only what decides about its look is loaded
};

/// What is loaded, as far as the rules tell it apart.
enum class RemoteKind {
    Look, ///< a style sheet, a picture or a font
    Other,
};

struct RemoteRequest {
    QUrl address;
    /// The page for which the engine loads it; empty if the engine doesn't say.
    QUrl page;
    RemoteKind kind = RemoteKind::Other;
};

/// Whether a request may go to another machine. A page of this machine may load from others only if the user has allowed
/// it; a page that came over the network may do so anyway. `isLocal` says which of the two is shown at the moment.
bool mayGoOut(const RemoteRequest &request, RemoteUse use, bool isLocal, bool isAllowed);

} // namespace zephira

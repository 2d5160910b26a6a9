// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// Puts a page into the folder "site" below a folder that reaches for a server and for files beyond its own folder in every
/// way that pages have, with all that it reaches for: secrets in a folder beside it, and links that lead there. Each way
/// asks the server for a path of its own. In the page, `window.tried` is true when all has been tried, and `window.got`
/// names the ways that got something; `window.spoken` names the peerWays() that led to a connection. Returns the page's path.
/// @param server  an address that ends in a slash
QString plantHostilePage(const QString &folder, const QString &server);

} // namespace zephira

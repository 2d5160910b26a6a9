// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/remoteaccess.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct Scheme {
    QStringView name;
    int port;
};

constexpr Scheme remoteSchemes[] = {{u"http", 80}, {u"https", 443}, {u"ws", 80}, {u"wss", 443}};

const Scheme *schemeOf(const QUrl &address)
{
    const auto scheme = std::ranges::find(remoteSchemes, address.scheme(), &Scheme::name);
    return scheme == std::end(remoteSchemes) ? nullptr : scheme;
}

} // namespace

bool isRemote(const QUrl &address)
{
    return schemeOf(address) != nullptr;
}

QString remoteHost(const QUrl &address)
{
    const Scheme *scheme = schemeOf(address);
    const int port = address.port(-1);
    const QString host = address.host();
    return port < 0 || (scheme && port == scheme->port) ? host : host + u':' + QString::number(port);
}

bool mayGoOut(const RemoteRequest &request, RemoteUse use, bool isLocal, bool isAllowed)
{
    if (!isRemote(request.address))
        return true;
    if (use == RemoteUse::Designer)
        return isAllowed && request.kind == RemoteKind::Look;
    if (isAllowed || isRemote(request.page))
        return true;
    // A page's first requests come a moment before it is shown, so the page that the engine names counts first. For what
    // a frame loads it names none; then the shown page decides.
    const bool isOfLocal = request.page.isLocalFile() || request.page.scheme() == u"data";
    return !isOfLocal && !isLocal;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/localfilefence.h"

namespace zephira {

namespace {

RemoteKind remoteKindOf(QWebEngineUrlRequestInfo::ResourceType type)
{
    switch (type) {
    case QWebEngineUrlRequestInfo::ResourceTypeStylesheet:
    case QWebEngineUrlRequestInfo::ResourceTypeImage:
    case QWebEngineUrlRequestInfo::ResourceTypeFontResource:
        return RemoteKind::Look;
    default:
        return RemoteKind::Other;
    }
}

} // namespace

void LocalFileFence::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const QUrl address = request.requestUrl();
    if (request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) {
        request.block(!m_files.mayShow(address));
        return;
    }
    const RemoteRequest remote{address, request.firstPartyUrl(), remoteKindOf(request.resourceType())};
    const bool mayGo = mayGoOut(remote, m_use, m_files.isLocal(), m_isRemoteAllowed);
    request.block(!mayGo || !m_files.mayLoad(address));
    if (!mayGo && !m_isRemoteAllowed)
        Q_EMIT remoteRefused(remoteHost(address));
}

} // namespace zephira

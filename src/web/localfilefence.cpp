// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/localfilefence.h"

namespace zephira {

void LocalFileFence::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const QUrl address = request.requestUrl();
    const bool isPage = request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    request.block(isPage ? !m_files.mayShow(address) : !m_files.mayLoad(address));
}

} // namespace zephira

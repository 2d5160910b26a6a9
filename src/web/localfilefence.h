// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfiles.h"
#include "web/remoteaccess.h"

#include <QWebEngineUrlRequestInterceptor>

namespace zephira {

/// Applies the rules of LocalFiles and mayGoOut() to every request of a page; refused requests never leave the engine.
/// Install it with the page's setUrlRequestInterceptor(), and tell files() where the page goes.
class LocalFileFence final : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    explicit LocalFileFence(RemoteUse use) : m_use(use) {}

    LocalFiles &files() { return m_files; }
    /// Whether pages of this machine may load from others. It counts for later requests; the engine doesn't repeat those
    /// that were refused, so the caller reloads the page.
    void setRemoteAllowed(bool allowed) { m_isRemoteAllowed = allowed; }
    bool isRemoteAllowed() const { return m_isRemoteAllowed; }
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

Q_SIGNALS:
    /// A page of this machine was kept from loading from that host, because the user hasn't allowed it.
    void remoteRefused(const QString &host);

private:
    const RemoteUse m_use;
    bool m_isRemoteAllowed = false;
    LocalFiles m_files;
};

} // namespace zephira

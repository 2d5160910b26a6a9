// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/livepage.h"
#include "web/browserpage.h"
#include "web/live/livebridge.h"

#include <QWebChannel>

namespace zephira {

/// The page inside a live page: a browser's page that stays where it is, with the script that follows the source in a world
/// of its own.
class LiveBrowserPage final : public BrowserPage
{
    Q_OBJECT

public:
    LiveBrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent);

    /// Loads a page; `load` is the number that its reports bear.
    void openLive(const QString &html, const QUrl &base, int load, ColourScheme scheme);

    /// Calls a function of the script; the answer is null if there was none.
    void call(const QString &function, const QVariantList &arguments,
              const std::function<void(const QVariant &)> &answered = {});

    LiveBridge &bridge() { return m_bridge; }

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;

private:
    void installScripts(int load, ColourScheme scheme);

    LiveBridge m_bridge;
    QWebChannel m_channel;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/designer/designerbridge.h"
#include "web/localfilefence.h"

#include <QTimer>
#include <QUrl>
#include <QWebChannel>
#include <QWebEnginePage>

#include <optional>

namespace zephira {

/// The page inside the designer. The document's scripts never run in it. It doesn't navigate, open windows or request
/// permissions, reads local files only in the folder of its base file and below, and loads only styles and pictures from
/// other hosts, if the user has allowed that.
class DesignerPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    DesignerPage(QWebEngineProfile &profile, QObject *parent);

    void setProjectFolder(const QString &folder) { m_fence.files().setProjectFolder(folder); }
    void setRemoteAllowed(bool allowed) { m_fence.setRemoteAllowed(allowed); }
    /// Loads an empty page with a base for relative addresses; ready() signals when it can take a document.
    void open(const QUrl &base);
    /// Whether the empty page that open() asked for isn't there yet.
    bool isOpening() const { return m_isOpening; }

    /// Kills the process of an unresponsive page, which could otherwise block its replacement for ever.
    void endIfHanging();

    /// Calls a function of the designer's script without waiting; the answer is null if there was none.
    void call(const QString &function, const QVariantList &arguments,
              const std::function<void(const QVariant &)> &answered);
    /// Calls a function and waits for its answer, at most `patience()`. Returns nothing if the page doesn't answer;
    /// then further calls don't wait until it does. Other calls may come while it waits: each gets its own answer.
    std::optional<QVariant> callAndWait(const QString &function, const QVariantList &arguments = {});

    DesignerBridge &bridge() { return m_bridge; }
    bool isResponding() const { return m_late == 0; }

    /// In milliseconds, including the allowance for a large page.
    int patience() const { return m_patience + m_allowance; }
    void setPatience(int patience) { m_patience = patience; }
    void setAllowance(int allowance) { m_allowance = allowance; }

Q_SIGNALS:
    void ready(bool ok);
    /// A call has waited for its answer as long as it may.
    void late();

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    /// Refused scripts are reported here, which is expected.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}

private:
    void installScript();
    void answeredLate(int opening);
    void showEmptyPage();
    void lookForEmptyPage();
    void lookAgain();

    LocalFileFence m_fence{RemoteUse::Designer};
    DesignerBridge m_bridge;
    QWebChannel m_channel;
    bool m_isOpening = false;
    /// Identifies an empty page.
    int m_opening = 0;
    QUrl m_base;
    QTimer m_secondLook;
    int m_looks = 0;
    int m_looksBeforeRetry = 0;
    /// The number of processes that have ended.
    int m_losses = 0;
    /// Questions that nobody is waiting for any more.
    int m_late = 0;
    int m_patience = 2000;
    int m_allowance = 0;
};

} // namespace zephira

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

/// The page inside the designer. Scripts of the document never run in it, it goes nowhere, opens nothing, asks for
/// nothing, and reads local files only in the folder of its base file and below.
class DesignerPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    DesignerPage(QWebEngineProfile &profile, QObject *parent);

    void setProjectFolder(const QString &folder) { m_fence.files().setProjectFolder(folder); }
    /// Loads an empty page that relative addresses lead from; ready() says when it can take a document.
    void open(const QUrl &base);

    /// Ends the process of a page that doesn't answer, which could keep another one from taking its place for ever.
    void endIfHanging();

    /// Calls a function of the designer's script and goes on without waiting; the answer is null where there was none.
    void call(const QString &function, const QVariantList &arguments,
              const std::function<void(const QVariant &)> &answered);
    /// Calls one and waits for its answer, at most `patience()`. Nothing where the page doesn't answer; then further
    /// calls don't wait at all until it does. While it waits other callers may come: each gets its own answer.
    std::optional<QVariant> callAndWait(const QString &function, const QVariantList &arguments = {});

    DesignerBridge &bridge() { return m_bridge; }
    bool isResponding() const { return m_late == 0; }

    /// In milliseconds; what a large page needs comes on top.
    int patience() const { return m_patience + m_allowance; }
    void setPatience(int patience) { m_patience = patience; }
    void setAllowance(int allowance) { m_allowance = allowance; }

Q_SIGNALS:
    void ready(bool ok);
    /// Somebody has waited for an answer as long as anybody should.
    void late();

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    /// Refused scripts are reported here, each of them; that is as it should be.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}

private:
    void installScript();
    void answeredLate(int opening);
    void showEmptyPage();
    void lookForEmptyPage();
    void lookAgain();

    LocalFileFence m_fence;
    DesignerBridge m_bridge;
    QWebChannel m_channel;
    bool m_isOpening = false;
    /// Tells one empty page from the next.
    int m_opening = 0;
    QUrl m_base;
    QTimer m_secondLook;
    int m_looks = 0;
    int m_looksBeforeRetry = 0;
    /// How many processes have ended.
    int m_losses = 0;
    /// Questions that nobody waits for any more.
    int m_late = 0;
    int m_patience = 2000;
    int m_allowance = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfilefence.h"

#include <QWebEnginePage>

#include <functional>

class QWebEngineNewWindowRequest;

namespace zephira {

class FileStore;
class InputWatch;
class ScriptMessageBar;

/// The page inside the browser. It may read local files only from its own folder, and may not download, open windows,
/// ask for permissions or start other programs; a link that requests a new window opens in this one. A page of this machine
/// can't lead to another one by itself: that takes the user, or the permission to load from others.
class BrowserPage : public QWebEnginePage
{
    Q_OBJECT

public:
    BrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent);

    /// Sets the bar that shows the messages and questions of scripts; it must outlive the page.
    void setMessages(ScriptMessageBar &messages) { m_messages = &messages; }
    /// Sets what knows of the user's clicks in the page; it must outlive the page. Without it, no link leads away from this
    /// machine.
    void setInput(InputWatch &input) { m_input = &input; }
    /// Pages inside this folder may load files from anywhere in it.
    void setProjectFolder(const QString &folder) { m_fence.files().setProjectFolder(folder); }
    /// Whether pages of this machine may load from others; it counts from the next load on.
    void setRemoteAllowed(bool allowed) { m_fence.setRemoteAllowed(allowed); }

    /// Opens an address on behalf of the user. If the current page doesn't respond because of an endless script, its
    /// process is killed.
    void open(const QUrl &address);
    /// The same for a file that is shown as a page regardless of its name. A very large file is shown according to its
    /// name.
    void openAsPage(const QUrl &file);
    /// The same for a page given as text, whose relative addresses are resolved against `base`. Text of more bytes of UTF-8
    /// than mostGivenBytes can't be given in this way.
    void openText(const QString &html, const QUrl &base);
    /// The engine turns the text into an address of at most two million characters, in which a byte may take three of them.
    static constexpr qsizetype mostGivenBytes = 600'000;

    /// Kills the page's process, which takes its page with it; processLost() signals its end.
    void endProcess();

    /// Reloads the current page.
    void reload();

    /// Going back and forward by this is the user's doing, and not the page's.
    void triggerAction(WebAction action, bool checked = false) override;

    /// How long a page may take to answer before its process is killed, in milliseconds.
    static constexpr int patience = 1500;

Q_SIGNALS:
    /// The current page makes way for the next one, whose address was already reported.
    void letGo();
    /// The page's process has ended unexpectedly.
    void processLost();
    /// The hosts that the page wanted to load from, or to lead to, and may not; none when another page comes.
    void remoteRefused(const QStringList &hosts);

protected:
    /// To be called by whoever has cleared the page's scripts.
    void hideClosedFeatures();
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl &origin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &message, const QString &preset, QString *result) override;
    /// Messages that scripts write to their console don't belong in the terminal.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}

private:
    bool mayLeaveFor(const QUrl &address, NavigationType type);
    void openInPlace(const QWebEngineNewWindowRequest &request);
    void endIfHanging(std::function<void()> again);
    void refuse(const QString &host);

    const FileStore &m_files;
    ScriptMessageBar *m_messages = nullptr;
    InputWatch *m_input = nullptr;
    /// Identifies a navigation; m_isAlive is set when the previous page has answered since it began.
    int m_navigation = 0;
    bool m_isAlive = true;
    /// Repeats the navigation after the process of an unresponsive page was killed.
    std::function<void()> m_again;
    LocalFileFence m_fence{RemoteUse::Browser};
    QStringList m_refusedHosts;
    /// The user is going back or forward.
    bool m_isInHistory = false;
    /// A page of this machine makes way for one from elsewhere, which may answer with another address.
    bool m_isLeaving = false;
};

} // namespace zephira

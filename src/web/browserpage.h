// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfilefence.h"

#include <QWebEnginePage>

#include <functional>

class QWebEngineNewWindowRequest;

namespace zephira {

class FileStore;
class ScriptMessageBar;

/// The page inside the browser. It is held to its own folder on the disk, may not download, open windows, ask for
/// permissions or start other programs; a link that wants a window of its own opens in this one.
class BrowserPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    BrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent);

    /// What scripts say and ask is shown there; it outlives the page.
    void setMessages(ScriptMessageBar &messages) { m_messages = &messages; }
    /// Files of pages that lie in this folder may come from all of it.
    void setProjectFolder(const QString &folder) { m_fence.files().setProjectFolder(folder); }

    /// Goes to an address in the user's name. A page that doesn't let go, because a script of it never ends, is ended.
    void open(const QUrl &address);
    /// The same, for a file that is a page whatever its name says. One that is very large goes by its name.
    void openAsPage(const QUrl &file);

    /// Loads the page that shows once more.
    void reload();

    /// In milliseconds, how long a page may take to say that it is alive before it is ended.
    static constexpr int patience = 1500;

Q_SIGNALS:
    /// The page that showed makes room for the one that was gone to. Its address is told of before.
    void letGo();
    /// The process of the page has ended by itself.
    void processLost();

protected:
    void javaScriptAlert(const QUrl &origin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &message, const QString &preset, QString *result) override;
    /// What scripts write to their console is nothing for the terminal.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}

private:
    void openInPlace(const QWebEngineNewWindowRequest &request);
    void endIfHanging(std::function<void()> again);

    const FileStore &m_files;
    ScriptMessageBar *m_messages = nullptr;
    /// Tells one navigation from the next, and whether the page before has answered since.
    int m_navigation = 0;
    bool m_isAlive = true;
    /// Goes where the page that was ended didn't let go.
    std::function<void()> m_again;
    LocalFileFence m_fence;
};

} // namespace zephira

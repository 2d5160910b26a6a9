// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/localfilefence.h"

#include <QWebEnginePage>

class QWebEngineNewWindowRequest;

namespace zephira {

class FileStore;

/// The page inside the browser. It is held to its own folder on the disk, may not download, open windows, ask for
/// permissions or start other programs; a link that wants a window of its own opens in this one.
class BrowserPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    BrowserPage(const FileStore &files, QWebEngineProfile &profile, QObject *parent);

    /// Goes to an address in the user's name.
    void open(const QUrl &address);
    /// The same, for a file that is a page whatever its name says. One that is very large goes by its name.
    void openAsPage(const QUrl &file);

protected:
    /// What scripts write to their console is nothing for the terminal.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}

private:
    void openInPlace(const QWebEngineNewWindowRequest &request);

    const FileStore &m_files;
    LocalFileFence m_fence;
};

} // namespace zephira

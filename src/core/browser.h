// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>

namespace zephira {

/// How a browser treats a local file.
enum class FileKind {
    ByName, ///< by its file name extension, as browsers do
    Page,   ///< as a page, whatever its name
};

/// The preview's browser as the rest of the program sees it. All operations return at once; pages load asynchronously.
/// Operations that aren't possible, such as going back without a history, do nothing.
class Browser
{
public:
    virtual ~Browser() = default;

    /// Shows a page, given as the full path of a local file, an address, or an address as people type it
    /// ("example.org").
    virtual void navigate(const QString &address) = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    /// Shows the page set with setHome(), or an empty page if none is set.
    virtual void goHome() = 0;
    virtual void refresh() = 0;
    virtual void stop() = 0;
    /// Address of the current page.
    virtual QString locationUrl() const = 0;

    /// Sets the home page. A file given as FileKind::Page is shown as a page however the user navigates to it.
    virtual void setHome(const QString &address, FileKind kind = FileKind::ByName) = 0;
    /// Sets the handler that is called when a navigation has ended.
    virtual void onNavigateComplete(std::function<void()> handler) = 0;
    /// Sets the handler that is called when the page's render process has ended unexpectedly.
    virtual void onProcessLost(std::function<void()> handler) = 0;

    /// Pages in this folder or below it may load files from anywhere in it; other pages only from their own folder and
    /// below. Empty for none. Takes effect with the next navigation.
    virtual void setProjectFolder(const QString &folder) = 0;

    /// Whether pages of this machine may load from others; takes effect with the next navigation. A page that came over
    /// the network may always do so.
    virtual void setRemoteAllowed(bool allowed) = 0;
    /// Is called with the hosts that the page wanted to load from and may not; with none when another page comes.
    virtual void onRemoteRefused(std::function<void(const QStringList &hosts)> handler) = 0;
};

} // namespace zephira

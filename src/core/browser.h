// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace zephira {

/// What a browser takes a local file for.
enum class FileKind {
    ByName, ///< what its name says, as browsers do
    Page,   ///< a page, whatever its name says
};

/// The browser of the preview as the rest of the program sees it. All operations return at once; pages load by
/// themselves. Operations that can't be done, such as going back without a history, do nothing.
class Browser
{
public:
    virtual ~Browser() = default;

    /// Shows a page: the full path of a local file, an address, or what people type for one ("example.org").
    virtual void navigate(const QString &address) = 0;
    virtual void goBack() = 0;
    virtual void goForward() = 0;
    /// Shows the page that setHome() named; an empty page where it named none.
    virtual void goHome() = 0;
    virtual void refresh() = 0;
    virtual void stop() = 0;
    /// Address of the page that shows.
    virtual QString locationUrl() const = 0;

    /// Names the user's own page. A file that is told to be a page shows as one, by whatever way it is gone to.
    virtual void setHome(const QString &address, FileKind kind = FileKind::ByName) = 0;
    /// Is called after each navigation that has come to its end.
    virtual void onNavigateComplete(std::function<void()> handler) = 0;
    /// Is called when the process that shows the page has ended by itself.
    virtual void onProcessLost(std::function<void()> handler) = 0;

    /// Pages that lie in this folder, or below it, may load files from all of it, and others from their own folder and
    /// below. Empty for none; it counts from the next navigation on.
    virtual void setProjectFolder(const QString &folder) = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace zephira {

/// Decides which local files a page may read. No page is trusted, even if it is on the user's own disk: it may read the
/// folder of the page that the user opened, and everything below it, with links in the file system resolved. If that
/// folder is inside the project folder, it may read the whole project folder. Pages from elsewhere may read no local
/// files.
class LocalFiles
{
public:
    /// The user, or the program, is opening this address. A local page makes its folder accessible to itself and to the
    /// pages in it that links lead to.
    void open(const QUrl &address);
    /// The page at this address is now shown.
    void shown(const QUrl &address);

    /// The folder of the user's project, for pages that are opened from now on; empty if there is none.
    void setProjectFolder(const QString &folder);

    /// Whether the window may navigate to an address that a page requests.
    bool mayShow(const QUrl &address) const;
    /// Whether a local page is shown or about to be; a remote page counts only once it is shown and no other one is coming.
    bool isLocal() const;
    /// Whether the current page, or the one about to be shown, may load something from an address.
    bool mayLoad(const QUrl &address) const;

private:
    QString readableFolder(const QUrl &page) const;

    /// Canonical paths, the last opened folder at the end.
    QStringList m_folders;
    /// Canonical path, or empty.
    QString m_projectFolder;
    QUrl m_coming;
    QUrl m_shown;
};

} // namespace zephira

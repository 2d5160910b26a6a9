// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

namespace zephira {

/// Which local files a page may read. A page is a stranger, even one that lies on the user's own disk: it gets what
/// lies in the folder of the page that the user opened, and below it, with links in the file system followed to their
/// ends. Where that folder lies in the project's, it gets what lies there. Pages from elsewhere get no local file at all.
class LocalFiles
{
public:
    /// The user, or the program, is going to this address. A local page opens its folder to itself and to the pages
    /// that links lead to within it.
    void open(const QUrl &address);
    /// The page at this address shows now.
    void shown(const QUrl &address);

    /// The folder of the user's project, for pages that are opened from now on; empty for none.
    void setProjectFolder(const QString &folder);

    /// Whether the window may go to an address that a page asks for.
    bool mayShow(const QUrl &address) const;
    /// Whether the page that shows, or is about to, may load something from an address.
    bool mayLoad(const QUrl &address) const;

private:
    QString folderOf(const QUrl &page) const;

    /// Canonical folders, the last opened one at the end.
    QStringList m_folders;
    /// Canonical, or empty.
    QString m_projectFolder;
    QUrl m_coming;
    QUrl m_shown;
};

} // namespace zephira

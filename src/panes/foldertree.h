// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panes/folderwatch.h"

#include <QTreeWidget>

namespace zephira {

/// A tree of folders with a root and a selection. A folder's children are read when it is opened, so that links which lead
/// in circles do no harm, and follow the disk from then on. While the root is the whole computer, it stands below
/// "My Computer", and "Desktop", "My Documents" and "Home", the user's own folders, above it.
class FolderTree : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString RootFolder READ rootFolder WRITE setRootFolder)
    Q_PROPERTY(QString SelectedFolder READ selectedFolder WRITE setSelectedFolder)

public:
    explicit FolderTree(QWidget *parent = nullptr);

    QString rootFolder() const { return m_root; }
    /// Makes the folder the only root, opens it and selects it; an empty path gives the whole computer, with nothing
    /// selected. Emits nothing.
    void setRootFolder(const QString &folder);
    /// The same under a name of its own.
    void setRootFolder(const QString &folder, const QString &caption);

    /// Full path of the selected folder. Those of "Desktop", "My Documents" and "Home" end in a separator, others, except for the
    /// root of all folders, don't. Empty when nothing is selected, and for "My Computer", which is no folder.
    QString selectedFolder() const;
    /// Opens the tree down to the folder and selects it. A path that isn't full, isn't below the root or isn't there is
    /// ignored. Emits nothing.
    void setSelectedFolder(const QString &folder);

Q_SIGNALS:
    /// The user selected another folder, or the one that was selected vanished from the disk and its parent took over.
    /// `folder` is selectedFolder().
    void folderSelected(const QString &folder);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showWholeComputer();
    void read(QTreeWidgetItem *item);
    void follow(QTreeWidgetItem *item);
    void removeVanished(QTreeWidgetItem *item, const QSet<QString> &names);
    void followChanged(const QSet<QString> &folders);

    void selectAgain(const QTreeWidgetItem *item);

    QString m_root;
    /// The selected folder that vanished, while nothing else has been selected but the one that took over.
    QString m_vanished;
    /// The item that every other folder lies below.
    QTreeWidgetItem *m_start = nullptr;
    FolderWatch m_watch;
};

} // namespace zephira

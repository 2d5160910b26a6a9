// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/folderwatch.h"

#include <QTreeWidget>

namespace zephira {

/// A tree of folders with a root and a selection. A folder's children are read when it is opened, so that circular
/// links do no harm, and updated from the disk from then on. While the root is the whole computer, it is below "My
/// Computer", with the user's own folders "Desktop", "My Documents" and "Home" above it.
class FolderTree : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString RootFolder READ rootFolder WRITE setRootFolder)
    Q_PROPERTY(QString SelectedFolder READ selectedFolder WRITE setSelectedFolder)

public:
    explicit FolderTree(QWidget *parent = nullptr);

    QString rootFolder() const { return m_root; }
    /// Makes the folder the only root, opens it and selects it; an empty path shows the whole computer with nothing
    /// selected. Emits nothing.
    void setRootFolder(const QString &folder);
    /// The same with a caption for the root.
    void setRootFolder(const QString &folder, const QString &caption);

    /// Full path of the selected folder. Those of "Desktop", "My Documents" and "Home" end in a separator; others
    /// don't, except for the root of the file system. Empty when nothing is selected, and for "My Computer", which is
    /// no folder.
    QString selectedFolder() const;
    /// Opens the tree down to the folder and selects it. A path that isn't absolute, isn't below the root or doesn't
    /// exist is ignored. Emits nothing.
    void setSelectedFolder(const QString &folder);

Q_SIGNALS:
    /// The user selected another folder, or the selected one vanished from the disk and its parent was selected
    /// instead. `folder` is selectedFolder().
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
    /// The selected folder that vanished; kept until the user selects anything but its parent, which took its place.
    QString m_vanished;
    /// The item above all other folders.
    QTreeWidgetItem *m_start = nullptr;
    FolderWatch m_watch;
};

} // namespace zephira

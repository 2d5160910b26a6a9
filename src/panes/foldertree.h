// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeWidget>

namespace zephira {

/// A tree of folders with a root and a selection. A folder's children are read when it is opened. While the root is the
/// whole computer, the desktop's own folders stand at the top.
class FolderTree : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString RootFolder READ rootFolder WRITE setRootFolder)
    Q_PROPERTY(QString SelectedFolder READ selectedFolder WRITE setSelectedFolder)

public:
    explicit FolderTree(QWidget *parent = nullptr);

    QString rootFolder() const { return m_root; }
    /// Makes the folder the only root; an empty path gives the whole computer.
    void setRootFolder(const QString &folder);

    /// Full path of the selected folder, without a separator at its end; empty when none is.
    QString selectedFolder() const;
    /// Opens the tree down to the folder and selects it. A path that isn't below the root, or isn't there, is ignored.
    void setSelectedFolder(const QString &folder);

Q_SIGNALS:
    void folderSelected(const QString &folder);

private:
    QTreeWidgetItem *addFolder(QTreeWidgetItem *parent, const QString &path, const QString &caption);
    void readChildren(QTreeWidgetItem *item);

    QString m_root;
};

} // namespace zephira

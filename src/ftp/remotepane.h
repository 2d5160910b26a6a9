// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/remoteview.h"

#include <QEvent>
#include <QObject>

class QAction;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace zephira {

class FileListView;

/// The server's side of the window: implements the view for the remote commands with the window's controls, which
/// outlive the pane. A node's key is stored in its KeyRole.
class RemotePane final : public QObject, public RemoteView
{
    Q_OBJECT

public:
    struct Parts {
        QTreeWidget &tree;
        FileListView &list;
        QLabel &path;
        QAction &allFiles;
        QAction &definedTypes;
    };

    explicit RemotePane(const Parts &parts, QObject *parent = nullptr);

    FileRows &files() override;
    void clearTree() override;
    void addRoot() override;
    std::optional<RemoteNode> selectedNode() const override;
    void selectNode(const QString &key) override;
    void rebuildNode(const QString &key) override;
    void addFolders(const QString &parentKey, const QStringList &names) override;
    void setPathText(const QString &text) override;
    void markPattern(bool all) override;

Q_SIGNALS:
    /// A folder was clicked, or reached with the keys or the mouse.
    void nodeChosen(const RemoteNode &node);
    void deletePressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTreeWidgetItem *find(const QString &key) const;
    void chooseSelected();
    void openSelected();
    void watchMouse(QEvent::Type type);

    Parts m_parts;
    /// The key of the folder that was opened last.
    QString m_openKey;
    /// The tree's viewport, stored because events still arrive while the tree is being destroyed.
    QObject *m_viewport = nullptr;
    /// From the second press of a double click to the next press.
    bool m_isSecondClick = false;
};

} // namespace zephira

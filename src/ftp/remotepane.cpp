// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/remotepane.h"

#include "core/itemroles.h"
#include "widgets/fileicons.h"
#include "widgets/fileimages.h"
#include "widgets/filelistview.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QSet>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString keyOf(const QTreeWidgetItem &item)
{
    return item.data(0, KeyRole).toString();
}

QTreeWidgetItem *makeNode(const QString &key, const QString &text, const QIcon &icon)
{
    auto *item = new QTreeWidgetItem({text});
    item->setData(0, KeyRole, key);
    item->setIcon(0, icon);
    return item;
}

} // namespace

RemotePane::RemotePane(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
    m_parts.tree.installEventFilter(this);
    m_viewport = m_parts.tree.viewport();
    m_viewport->installEventFilter(this);
    connect(&m_parts.tree, &QTreeWidget::itemClicked, this, [this] {
        // So that a double click asks the server only once.
        if (!m_isSecondClick)
            chooseSelected();
    });
    markPattern(true);
}

FileRows &RemotePane::files()
{
    return m_parts.list;
}

void RemotePane::clearTree()
{
    m_parts.tree.clear();
    m_openKey.clear();
}

void RemotePane::addRoot()
{
    m_parts.tree.addTopLevelItem(makeNode(remoteRootKey.toString(), remoteRootText.toString(), fileIcon(rootImage)));
}

std::optional<RemoteNode> RemotePane::selectedNode() const
{
    const QList<QTreeWidgetItem *> selected = m_parts.tree.selectedItems();
    if (selected.isEmpty())
        return {};
    return RemoteNode{keyOf(*selected.first()), selected.first()->text(0)};
}

void RemotePane::selectNode(const QString &key)
{
    if (QTreeWidgetItem *item = find(key)) {
        m_parts.tree.setCurrentItem(item);
        m_parts.tree.scrollToItem(item);
    }
}

void RemotePane::rebuildNode(const QString &key)
{
    m_openKey = key;
    if (QTreeWidgetItem *item = find(key)) {
        qDeleteAll(item->takeChildren());
        item->setExpanded(true);
    }
}

void RemotePane::addFolders(const QString &parentKey, const QStringList &names)
{
    QTreeWidgetItem *parent = find(parentKey);
    if (!parent || names.isEmpty())
        return;
    QSet<QString> present;
    for (int i = 0; i < parent->childCount(); ++i)
        present.insert(keyOf(*parent->child(i)));
    const QIcon icon = folderIcon();
    QList<QTreeWidgetItem *> items;
    for (const QString &name : names) {
        const QString key = parentKey + name + u'/';
        if (present.contains(key))
            continue;
        present.insert(key);
        items.append(makeNode(key, name, icon));
    }
    parent->addChildren(items);
    parent->setExpanded(true);
    m_parts.tree.topLevelItem(0)->setExpanded(true);
}

void RemotePane::setPathText(const QString &text)
{
    m_parts.path.setText(text);
}

void RemotePane::markPattern(bool all)
{
    m_parts.allFiles.setChecked(all);
    m_parts.definedTypes.setChecked(!all);
}

/// Finds the node with a key by walking all nodes from the first.
QTreeWidgetItem *RemotePane::find(const QString &key) const
{
    for (QTreeWidgetItemIterator item(&m_parts.tree); *item; ++item) {
        if (keyOf(**item) == key)
            return *item;
    }
    return nullptr;
}

void RemotePane::chooseSelected()
{
    if (const auto node = selectedNode())
        Q_EMIT nodeChosen(*node);
}

/// Commands act on the selected folder, so however it was selected, it has to be opened.
void RemotePane::openSelected()
{
    if (const auto node = selectedNode(); node && node->key != m_openKey)
        Q_EMIT nodeChosen(*node);
}

/// A press of any button selects, and so does dragging; neither is always a click.
void RemotePane::watchMouse(QEvent::Type type)
{
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
        m_isSecondClick = type == QEvent::MouseButtonDblClick;
    else if (type == QEvent::MouseButtonRelease)
        // Deferred, because the tree handles the event after this filter.
        QMetaObject::invokeMethod(this, &RemotePane::openSelected, Qt::QueuedConnection);
}

bool RemotePane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_viewport)
        watchMouse(event->type());
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<const QKeyEvent *>(event);
    const bool pressed = event->type() == QEvent::KeyPress;
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (pressed && key->key() == Qt::Key_Delete) {
        Q_EMIT deletePressed();
        return true;
    }
    if (pressed && enter) {
        chooseSelected();
        return true;
    }
    // So that a key held down asks the server only once.
    if (!pressed && !key->isAutoRepeat())
        openSelected();
    return QObject::eventFilter(watched, event);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/foldertree.h"

#include <QDir>
#include <QHeaderView>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int ReadRole = Qt::UserRole + 2;

QString pathOf(const QTreeWidgetItem *item)
{
    return item->data(0, PathRole).toString();
}

} // namespace

FolderTree::FolderTree(QWidget *parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemExpanded, this, &FolderTree::readChildren);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (item)
            Q_EMIT folderSelected(pathOf(item));
    });
    setRootFolder({});
}

QTreeWidgetItem *FolderTree::addFolder(QTreeWidgetItem *parent, const QString &path, const QString &caption)
{
    auto *item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    item->setText(0, caption);
    item->setToolTip(0, QDir::toNativeSeparators(path));
    item->setData(0, PathRole, path);
    // Whether there are folders inside is only known once it is read.
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

void FolderTree::setRootFolder(const QString &folder)
{
    const QSignalBlocker quiet(this);
    clear();
    m_root = folder.isEmpty() ? QString() : QDir::cleanPath(folder);
    if (!m_root.isEmpty()) {
        QTreeWidgetItem *root = addFolder(nullptr, m_root, QDir::toNativeSeparators(m_root));
        readChildren(root);
        root->setExpanded(true);
        setCurrentItem(root);
        return;
    }
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!desktop.isEmpty())
        addFolder(nullptr, desktop, u"Desktop"_s);
    if (!documents.isEmpty())
        addFolder(nullptr, documents, u"My Documents"_s);
    addFolder(nullptr, QDir::rootPath(), QDir::toNativeSeparators(QDir::rootPath()));
}

QString FolderTree::selectedFolder() const
{
    const QTreeWidgetItem *item = currentItem();
    return item ? pathOf(item) : QString();
}

void FolderTree::setSelectedFolder(const QString &folder)
{
    if (folder.isEmpty() || !QDir(folder).exists())
        return;
    const QString target = QDir::cleanPath(folder);
    QTreeWidgetItem *item = topLevelItem(topLevelItemCount() - 1);
    while (item && pathOf(item) != target) {
        readChildren(item);
        QTreeWidgetItem *next = nullptr;
        for (int i = 0; i < item->childCount() && !next; ++i) {
            const QString path = pathOf(item->child(i));
            if (target == path || target.startsWith(path + u'/'))
                next = item->child(i);
        }
        const QString inside = pathOf(item).endsWith(u'/') ? pathOf(item) : pathOf(item) + u'/';
        if (!next && target.startsWith(inside)) {
            // A hidden folder, and one that is newer than the tree, joins it when it is asked for.
            const QString name = target.sliced(inside.size()).section(u'/', 0, 0);
            next = addFolder(item, inside + name, name);
        }
        if (next)
            item->setExpanded(true);
        item = next;
    }
    if (!item)
        return;
    const QSignalBlocker quiet(this);
    setCurrentItem(item);
    scrollToItem(item);
}

void FolderTree::readChildren(QTreeWidgetItem *item)
{
    if (item->data(0, ReadRole).toBool())
        return;
    item->setData(0, ReadRole, true);
    const QDir folder(pathOf(item));
    const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names)
        addFolder(item, folder.filePath(name), name);
    if (names.isEmpty())
        item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

} // namespace zephira

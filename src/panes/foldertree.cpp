// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/foldertree.h"

#include "core/itemroles.h"
#include "core/paths.h"
#include "widgets/themeicon.h"

#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QTreeWidgetItemIterator>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In pixels; the pane is narrow and paths are deep.
constexpr int stepOfDepth = 12;

constexpr int ReadRole = Qt::UserRole + 2;

QString pathOf(const QTreeWidgetItem *item)
{
    return item->data(0, PathRole).toString();
}

/// The folder's path in the form that the watch uses; empty for an item that is no folder.
QString watchedPathOf(const QTreeWidgetItem *item)
{
    const QString path = pathOf(item);
    return path.isEmpty() ? path : QDir::cleanPath(path);
}

bool isRead(const QTreeWidgetItem *item)
{
    return item->data(0, ReadRole).toBool();
}

QTreeWidgetItem *makeFolderItem(const QString &path, const QString &caption, QStringView icon)
{
    auto *item = new QTreeWidgetItem(QStringList(caption));
    item->setIcon(0, themeIcon(icon.toString()));
    item->setToolTip(0, QDir::toNativeSeparators(path));
    item->setData(0, PathRole, path);
    // Whether the folder has subfolders is known only after it is read.
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

QTreeWidgetItem *makeFolder(const QString &path, const QString &caption)
{
    return makeFolderItem(path, caption, u"folder");
}

/// The child that is the folder `target` or contains it, or nullptr.
QTreeWidgetItem *childTowards(const QTreeWidgetItem *item, const QString &target)
{
    for (int i = 0; i < item->childCount(); ++i) {
        const QString path = pathOf(item->child(i));
        if (target == path || target.startsWith(path + u'/'))
            return item->child(i);
    }
    return nullptr;
}

/// Inserts the folders that an item doesn't have yet among its children, which are sorted in the same order.
void addNew(QTreeWidgetItem *item, const QStringList &names)
{
    QSet<QString> known;
    for (int i = 0; i < item->childCount(); ++i)
        known.insert(item->child(i)->text(0));
    const QDir folder(pathOf(item));
    QList<QTreeWidgetItem *> fresh;
    for (const QString &name : names) {
        if (!known.contains(name))
            fresh.append(makeFolder(folder.filePath(name), name));
    }
    if (known.isEmpty()) {
        item->addChildren(fresh);
        return;
    }
    int row = 0;
    for (QTreeWidgetItem *child : std::as_const(fresh)) {
        while (row < item->childCount() && item->child(row)->text(0).compare(child->text(0), Qt::CaseInsensitive) < 0)
            ++row;
        item->insertChild(row, child);
    }
}

bool isSameOrBelow(const QTreeWidgetItem *item, const QTreeWidgetItem *ancestor)
{
    while (item && item != ancestor)
        item = item->parent();
    return item;
}

} // namespace

FolderTree::FolderTree(QWidget *parent) : QTreeWidget(parent), m_watch(this)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(stepOfDepth);
    connect(this, &QTreeWidget::itemExpanded, this, &FolderTree::read);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        m_vanished.clear();
        if (item)
            Q_EMIT folderSelected(pathOf(item));
    });
    connect(&m_watch, &FolderWatch::changed, this, &FolderTree::followChanged);
    showWholeComputer();
}

void FolderTree::showWholeComputer()
{
    struct StandardFolder {
        QStringView caption;
        QStringView icon;
        QStandardPaths::StandardLocation location;
    };
    static constexpr StandardFolder places[] = {
        {u"Desktop", u"user-desktop", QStandardPaths::DesktopLocation},
        {u"My Documents", u"folder-documents", QStandardPaths::DocumentsLocation},
        {u"Home", u"user-home", QStandardPaths::HomeLocation},
    };
    for (const StandardFolder &place : places) {
        const QString folder = QStandardPaths::writableLocation(place.location);
        addTopLevelItem(makeFolderItem(withSlash(folder), place.caption.toString(), place.icon));
    }
    QTreeWidgetItem *computer = makeFolderItem({}, u"My Computer"_s, u"computer");
    m_start = makeFolder(QDir::rootPath(), QDir::toNativeSeparators(QDir::rootPath()));
    computer->addChild(m_start);
    addTopLevelItem(computer);
    computer->setExpanded(true);
}

void FolderTree::setRootFolder(const QString &folder)
{
    setRootFolder(folder, QDir::toNativeSeparators(folder.isEmpty() ? folder : QDir::cleanPath(folder)));
}

void FolderTree::setRootFolder(const QString &folder, const QString &caption)
{
    m_vanished.clear();
    const QSignalBlocker quiet(this);
    clear();
    m_watch.clear();
    m_root = folder.isEmpty() ? QString() : QDir::cleanPath(folder);
    if (m_root.isEmpty()) {
        showWholeComputer();
        return;
    }
    m_start = makeFolder(m_root, caption);
    addTopLevelItem(m_start);
    read(m_start);
    m_start->setExpanded(true);
    setCurrentItem(m_start);
}

QString FolderTree::selectedFolder() const
{
    const QTreeWidgetItem *item = currentItem();
    return item ? pathOf(item) : QString();
}

void FolderTree::setSelectedFolder(const QString &folder)
{
    if (!QDir::isAbsolutePath(folder) || !QDir(folder).exists())
        return;
    const QString target = QDir::cleanPath(folder);
    QTreeWidgetItem *item = m_start;
    while (item && pathOf(item) != target) {
        read(item);
        QTreeWidgetItem *next = childTowards(item, target);
        const QString inside = withSlash(pathOf(item));
        if (!next && target.startsWith(inside)) {
            // Hidden folders, and those created after the tree was read, are added when they are requested.
            const QString name = target.sliced(inside.size()).section(u'/', 0, 0);
            addNew(item, {name});
            next = childTowards(item, target);
        }
        if (next)
            item->setExpanded(true);
        item = next;
    }
    if (!item)
        return;
    const QSignalBlocker quiet(this);
    m_vanished.clear();
    setCurrentItem(item);
    scrollToItem(item, QAbstractItemView::PositionAtCenter);
}

/// Fills an item that is being opened. If its folder can't be watched, it is filled again each time.
void FolderTree::read(QTreeWidgetItem *item)
{
    if (!pathOf(item).isEmpty() && !(isRead(item) && m_watch.contains(watchedPathOf(item))))
        follow(item);
}

/// Updates the item's children from the folder on disk. Those that remain keep their expanded and selected items.
void FolderTree::follow(QTreeWidgetItem *item)
{
    item->setData(0, ReadRole, true);
    m_watch.add(watchedPathOf(item));
    const QStringList names =
        QDir(pathOf(item)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    removeVanished(item, QSet<QString>(names.begin(), names.end()));
    addNew(item, names);
    selectAgain(item);
    item->setChildIndicatorPolicy(item->childCount() > 0 ? QTreeWidgetItem::ShowIndicator
                                                         : QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

/// If the selected folder is deleted and created again, as many build tools do, it is selected again.
void FolderTree::selectAgain(const QTreeWidgetItem *item)
{
    if (m_vanished.isEmpty() || currentItem() != item || !QDir(m_vanished).exists())
        return;
    const QString folder = std::exchange(m_vanished, {});
    setSelectedFolder(folder);
    if (currentItem() != item)
        Q_EMIT folderSelected(selectedFolder());
}

void FolderTree::removeVanished(QTreeWidgetItem *item, const QSet<QString> &names)
{
    for (int i = item->childCount() - 1; i >= 0; --i) {
        QTreeWidgetItem *child = item->child(i);
        // Hidden folders that were requested by path aren't among the names.
        if (names.contains(child->text(0)) || QDir(pathOf(child)).exists()) {
            // The folder may have been replaced by a new one of the same name, which isn't watched yet.
            if (isRead(child))
                read(child);
            continue;
        }
        if (isSameOrBelow(currentItem(), child)) {
            const QString vanished = pathOf(currentItem());
            setCurrentItem(item);
            m_vanished = vanished;
        }
        m_watch.forget(watchedPathOf(child));
        delete child;
    }
}

void FolderTree::followChanged(const QSet<QString> &folders)
{
    for (const QString &folder : folders) {
        // Updating an item deletes only items below it, which are other folders.
        QList<QTreeWidgetItem *> items;
        for (QTreeWidgetItemIterator it(this); *it; ++it) {
            if (isRead(*it) && watchedPathOf(*it) == folder)
                items.append(*it);
        }
        for (QTreeWidgetItem *item : std::as_const(items))
            follow(item);
    }
}

void FolderTree::keyPressEvent(QKeyEvent *event)
{
    // The asterisk would expand everything below an item: it would read the whole disk, and never end on circular
    // links.
    if (event->key() == Qt::Key_Asterisk && currentItem())
        currentItem()->setExpanded(true);
    else
        QTreeWidget::keyPressEvent(event);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dirlistbox.h"

#include "core/itemroles.h"
#include "core/paths.h"
#include "widgets/fileicons.h"
#include "widgets/fileimages.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>

#include <utility>

namespace zephira {

namespace {

bool isReadableFolder(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isReadable() && folder.isExecutable();
}

} // namespace

DirListBox::DirListBox(QWidget *parent) : QTreeWidget(parent), m_path(QDir::rootPath())
{
    setHeaderHidden(true);
    setColumnCount(1);
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &DirListBox::openItem);
    fill();
}

bool DirListBox::setPath(const QString &path)
{
    const QString wanted = QDir::cleanPath(path);
    if (path.isEmpty() || !QDir::isAbsolutePath(wanted) || !isReadableFolder(wanted))
        return false;
    if (wanted == m_path)
        return true;
    m_path = wanted;
    fill();
    Q_EMIT pathChanged(m_path);
    return true;
}

void DirListBox::refresh()
{
    while (!isReadableFolder(m_path) && m_path != QDir::rootPath())
        m_path = parentFolder(m_path);
    fill();
}

void DirListBox::fill()
{
    clear();
    const QIcon open = fileIcon(openFolderImage);
    const auto makeItem = [](const QString &path, const QString &caption, const QIcon &icon) {
        auto *item = new QTreeWidgetItem({caption});
        item->setIcon(0, icon);
        item->setData(0, PathRole, path);
        return item;
    };
    QTreeWidgetItem *current = makeItem(QDir::rootPath(), QDir::rootPath(), open);
    addTopLevelItem(current);
    const QStringList steps = m_path.split(u'/', Qt::SkipEmptyParts);
    for (const QString &step : steps) {
        QTreeWidgetItem *item = makeItem(withSlash(current->data(0, PathRole).toString()) + step, step, open);
        current->addChild(item);
        current = item;
    }

    const QIcon closed = fileIcon(folderImage);
    const QString inside = withSlash(m_path);
    QList<QTreeWidgetItem *> items;
    const QStringList names = QDir(m_path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names)
        items.append(makeItem(inside + name, name, closed));
    current->addChildren(items);
    expandAll();
    setCurrentItem(current);
    scrollToItem(current);
}

void DirListBox::openItem(const QTreeWidgetItem *item)
{
    if (item)
        setPath(item->data(0, PathRole).toString());
}

void DirListBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete)
        Q_EMIT deletePressed();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        openItem(currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

void DirListBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isSecondClick = true;
    QTreeWidget::mouseDoubleClickEvent(event);
}

void DirListBox::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    if (!std::exchange(m_isSecondClick, false) && event->button() == Qt::LeftButton)
        Q_EMIT listClicked();
}

} // namespace zephira

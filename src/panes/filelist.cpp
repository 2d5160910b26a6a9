// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/filelist.h"

#include "core/languages.h"
#include "widgets/itemchoice.h"
#include "widgets/themeicon.h"

#include <QContextMenuEvent>
#include <QIcon>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int pictureSize = 16;

} // namespace

FileList::FileList(QWidget *parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setIconSize({pictureSize, pictureSize});
    onItemChosen(*this, this, [this](const QModelIndex &) { Q_EMIT opened(); });
}

void FileList::setNames(const QStringList &names)
{
    clear();
    addItems(names);
    // With a signal for each item, ten thousand pictures would take longer than everything else; nothing is painted
    // yet.
    const QSignalBlocker quiet(model());
    const QIcon text = themeIcon(u"text-x-generic"_s);
    const QIcon picture = themeIcon(u"image-x-generic"_s);
    for (int row = 0; row < count(); ++row)
        item(row)->setIcon(isPicture(names[row]) ? picture : text);
}

QStringList FileList::names() const
{
    QStringList names;
    for (int row = 0; row < count(); ++row)
        names.append(item(row)->text());
    return names;
}

void FileList::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && viewport()->rect().contains(event->position().toPoint()))
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void FileList::keyPressEvent(QKeyEvent *event)
{
    // The alternative menu key, which doesn't cause a context menu event here.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        Q_EMIT menuWanted(viewport()->mapToGlobal(visualItemRect(currentItem()).center()));
    else
        QListWidget::keyPressEvent(event);
}

void FileList::contextMenuEvent(QContextMenuEvent *event)
{
    // With the mouse, the menu is opened when the button is released.
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(event->globalPos());
}

} // namespace zephira

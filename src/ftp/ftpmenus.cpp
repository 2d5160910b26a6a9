// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpmenus.h"

#include "widgets/tipwithkeys.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The picture with a small computer or server in its corner.
QIcon withEmblem(const QIcon &picture, FtpToolKey::Side side, const QToolBar &toolBar)
{
    if (side == FtpToolKey::Side::None)
        return picture;
    const QIcon emblem =
        QIcon::fromTheme(side == FtpToolKey::Side::Local ? u"computer"_s : u"network-server"_s,
                         toolBar.style()->standardIcon(side == FtpToolKey::Side::Local ? QStyle::SP_ComputerIcon
                                                                                       : QStyle::SP_DriveNetIcon));
    const QSize size = toolBar.iconSize();
    const QSize small = size * 3 / 5;
    QIcon result;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        QPixmap both(size * toolBar.devicePixelRatioF());
        both.setDevicePixelRatio(toolBar.devicePixelRatioF());
        both.fill(Qt::transparent);
        QPainter painter(&both);
        picture.paint(&painter, QRect(QPoint(), size * 4 / 5), Qt::AlignCenter, mode);
        emblem.paint(&painter,
                     QRect(QPoint(size.width(), size.height()) - QPoint(small.width(), small.height()), small),
                     Qt::AlignCenter, mode);
        painter.end();
        result.addPixmap(both, mode);
    }
    return result;
}

} // namespace

FtpMenus::FtpMenus(QMenuBar &menuBar, QToolBar &toolBar, QObject *parent) : QObject(parent)
{
    for (const FtpMenuItem &item : ftpMenus())
        menuBar.addMenu(makeMenu(item, &menuBar));
    addKeys(toolBar, localToolKeys());
    toolBar.addSeparator();
    addKeys(toolBar, remoteToolKeys());
}

QAction &FtpMenus::entry(QStringView name) const
{
    return *m_entries.value(name.toString());
}

QMenu &FtpMenus::menu(QStringView name) const
{
    return *m_menus.value(name.toString());
}

QMenu *FtpMenus::makeMenu(const FtpMenuItem &item, QWidget *parent)
{
    auto *menu = new QMenu(item.caption.toString(), parent);
    menu->setObjectName(item.name.toString());
    m_menus.insert(menu->objectName(), menu);
    for (const FtpMenuItem &child : item.children) {
        if (child.children.empty())
            addEntry(menu, child);
        else
            menu->addMenu(makeMenu(child, menu));
    }
    return menu;
}

void FtpMenus::addEntry(QMenu *menu, const FtpMenuItem &item)
{
    QAction *entry = menu->addAction(QIcon::fromTheme(item.icon.toString()), item.caption.toString());
    entry->setObjectName(item.name.toString());
    entry->setCheckable(item.kind == FtpMenuItem::Kind::Check);
    m_entries.insert(entry->objectName(), entry);
    connect(entry, &QAction::triggered, this, [this, entry, &item] {
        // Only the command sets the check mark: undo what the click did to it.
        if (entry->isCheckable())
            entry->setChecked(!entry->isChecked());
        Q_EMIT chosen(item);
    });
}

void FtpMenus::addKeys(QToolBar &toolBar, std::span<const FtpToolKey> keys)
{
    for (const FtpToolKey &row : keys) {
        QAction &does = entry(row.entry);
        QAction *key = toolBar.addAction(withEmblem(does.icon(), row.side, toolBar),
                                         row.label.isEmpty() ? row.tip.toString() : row.label.toString());
        key->setObjectName(row.key.toString());
        key->setToolTip(tipWithKeys(row.tip, row.pressed));
        auto *button = qobject_cast<QToolButton *>(toolBar.widgetForAction(key));
        button->setAccessibleName(row.tip.toString());
        if (!row.label.isEmpty())
            button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        connect(key, &QAction::triggered, &does, &QAction::trigger);
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpmenus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace zephira {

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
    connect(entry, &QAction::triggered, this, [this, entry] {
        // The mark is the command's to set: undo what the click did to it.
        if (entry->isCheckable())
            entry->setChecked(!entry->isChecked());
        Q_EMIT triggered(entry->objectName());
    });
}

void FtpMenus::addKeys(QToolBar &toolBar, std::span<const FtpToolKey> keys)
{
    for (const FtpToolKey &row : keys) {
        QAction &does = entry(row.entry);
        QAction *key = toolBar.addAction(does.icon(), row.tip.toString());
        key->setObjectName(row.key.toString());
        key->setToolTip(row.tip.toString());
        toolBar.widgetForAction(key)->setAccessibleName(row.tip.toString());
        connect(key, &QAction::triggered, &does, &QAction::trigger);
    }
}

} // namespace zephira

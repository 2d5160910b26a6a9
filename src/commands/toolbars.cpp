// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/toolbars.h"

#include "commands/icons.h"
#include "commands/menutable.h"
#include "commands/toolbartable.h"
#include "widgets/tipwithkeys.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

namespace zephira {

CommandToolBar::CommandToolBar(const ToolBarTable &table, QWidget *parent)
    : QToolBar(table.title.toString(), parent), m_table(table)
{
    setObjectName(table.name);
    setIconSize({22, 22});
    for (const ToolButton &button : table.buttons) {
        if (button.key.isEmpty())
            addSeparator();
        else
            addButton(button);
    }
}

void CommandToolBar::addButton(const ToolButton &button)
{
    QAction *action = new QAction(this);
    action->setObjectName(button.key);
    const MenuItem *entry = findMenuItem(button.entry);
    setTip(action, tipWithKeys(button.tip, entry ? entry->shortcut : QStringView()));
    setCommandIcon(action, button.icon);
    addAction(action); // Last, because the toolbar would adapt its button to each change.
    widgetForAction(action)->setAccessibleName(action->toolTip());
    connect(action, &QAction::triggered, this, [this, &button] { Q_EMIT chosen(button.command); });
    if (button.pullDown.empty())
        return;

    QMenu *menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    for (const PullDownEntry &row : button.pullDown) {
        const QString entryKey = row.key.toString();
        QAction *entry = menu->addAction(row.caption.toString());
        entry->setObjectName(entryKey);
        entry->setStatusTip(row.statusTip.toString());
        connect(entry, &QAction::triggered, this, [this, &row] { Q_EMIT chosen(row.command); });
        connect(menu, &QMenu::aboutToShow, entry, [entry, icon = row.icon] {
            if (entry->icon().isNull())
                entry->setIcon(iconFor(icon));
        });
    }
    action->setMenu(menu);
    qobject_cast<QToolButton *>(widgetForAction(action))->setPopupMode(QToolButton::MenuButtonPopup);
}

void CommandToolBar::setTip(QAction *action, const QString &tip)
{
    action->setText(tip);
    action->setToolTip(tip);
    if (QWidget *button = widgetForAction(action))
        button->setAccessibleName(tip);
}

void CommandToolBar::showKeys(QStringView entry, const QString &keys)
{
    for (const ToolButton &button : m_table.buttons) {
        if (!button.entry.isEmpty() && button.entry == entry)
            setTip(action(button.key.toString()), tipWithKeys(button.tip, keys));
    }
}

QAction *CommandToolBar::action(const QString &key) const
{
    return findChild<QAction *>(key);
}

void CommandToolBar::setMet(Need need, bool met)
{
    // The rows come first, in order, followed by whatever else the window has added.
    const QList<QAction *> buttons = actions();
    for (std::size_t row = 0; row < m_table.buttons.size(); ++row) {
        QAction *button = buttons[static_cast<qsizetype>(row)];
        if (m_table.buttons[row].need == need)
            button->setEnabled(met);
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace zephira {

/// The number of a signal's receivers, which QObject reveals only to its subclasses.
struct Listeners : QObject {
    static int to(const QObject &sender, const char *signal) { return (sender.*&Listeners::receivers)(signal); }
};

/// The number of receivers of an action, not counting the widgets that show it. These are counted on an idle action
/// that is added to the same widgets.
inline int effectsOf(QAction &action)
{
    QAction idle(nullptr);
    const QList<QObject *> holders = action.associatedObjects();
    for (QObject *holder : holders) {
        if (auto *menu = qobject_cast<QMenu *>(holder))
            menu->addAction(&idle);
        else if (auto *bar = qobject_cast<QToolBar *>(holder))
            bar->addAction(&idle);
        else if (auto *menuBar = qobject_cast<QMenuBar *>(holder))
            menuBar->addAction(&idle);
    }
    const char *signal = SIGNAL(triggered(bool));
    return Listeners::to(action, signal) - Listeners::to(idle, signal);
}

/// What is wrong with an action: it must have exactly one effect if it can be chosen, and at most one if it opens a
/// menu.
inline QStringList faultsOf(QAction &action)
{
    if (action.isSeparator() || !action.isEnabled())
        return {};
    const int effects = effectsOf(action);
    if (effects == 1 || (effects == 0 && action.menu()))
        return {};
    return {QStringLiteral("%1 \"%2\" has %3 effects").arg(action.objectName(), action.text()).arg(effects)};
}

/// The same for several actions.
inline QStringList faultsOf(const QList<QAction *> &actions)
{
    QStringList faults;
    for (QAction *action : actions)
        faults.append(faultsOf(*action));
    return faults;
}

/// All actions of a menu or toolbar and of the menus in it.
inline QList<QAction *> actionsOf(const QWidget &holder)
{
    QList<QAction *> found;
    const QList<QAction *> all = holder.actions();
    for (QAction *action : all) {
        found.append(action);
        if (action->menu())
            found.append(actionsOf(*action->menu()));
    }
    return found;
}

/// The actions that the user can choose, without those that only open a menu.
inline QList<QAction *> choosable(QList<QAction *> actions)
{
    actions.removeIf(
        [](QAction *action) { return action->isSeparator() || !action->isEnabled() || effectsOf(*action) == 0; });
    return actions;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenu>
#include <QToolBar>

namespace zephira {

/// Who listens to a signal, which QObject tells its heirs alone.
struct Listeners : QObject {
    static int to(const QObject &sender, const char *signal) { return (sender.*&Listeners::receivers)(signal); }
};

/// How many listen to an action beside the widgets that show it. What those listen with is counted on an action that
/// stands beside it and does nothing.
inline int effectsOf(QAction &action)
{
    QAction idle(nullptr);
    for (QObject *holder : action.associatedObjects()) {
        if (auto *menu = qobject_cast<QMenu *>(holder))
            menu->addAction(&idle);
        else if (auto *bar = qobject_cast<QToolBar *>(holder))
            bar->addAction(&idle);
    }
    const char *signal = SIGNAL(triggered(bool));
    return Listeners::to(action, signal) - Listeners::to(idle, signal);
}

/// What is wrong with an action: one that can be chosen has exactly one effect, one that opens a menu may have one.
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
    for (QAction *action : holder.actions()) {
        found.append(action);
        if (action->menu())
            found.append(actionsOf(*action->menu()));
    }
    return found;
}

/// Those that the user can choose, without what only opens a menu.
inline QList<QAction *> choosable(QList<QAction *> actions)
{
    actions.removeIf(
        [](QAction *action) { return action->isSeparator() || !action->isEnabled() || effectsOf(*action) == 0; });
    return actions;
}

} // namespace zephira

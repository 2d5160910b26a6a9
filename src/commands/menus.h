// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"
#include "commands/commandparts.h"

#include <QHash>
#include <QObject>

#include <span>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace zephira {

class FormOpener;
struct MenuItem;

/// Builds the menu tree from its table: the menus of the bar, and those that only pop up. Each menu and entry bears its
/// name as objectName. The five designer menus are disabled until the visual view opens.
class Menus : public QObject, public CheckMarks
{
    Q_OBJECT

public:
    Menus(QMenuBar *bar, QObject *owner);

    /// By name; nullptr for a name that isn't in the tree, or isn't of that kind.
    QAction *action(const QString &name) const { return m_actions.value(name); }
    QMenu *menu(const QString &name) const { return m_menus.value(name); }

    // CheckMarks; the name is that of an entry.
    bool isChecked(QStringView entry) const override;
    void setChecked(QStringView entry, bool checked) override;

    /// Disables the entries whose form can't be opened yet and says so in their tool tips.
    void applyAvailability(const FormOpener &forms);

Q_SIGNALS:
    /// An entry was chosen, by mouse, key or shortcut. Its check mark stands as before: the command sets it.
    void chosen(const zephira::Command &command);

private:
    QMenu *makeMenu(const MenuItem &item, QWidget *parent);
    void fill(QMenu *menu, std::span<const MenuItem> items);
    void addEntry(QMenu *menu, const MenuItem &item);

    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
};

} // namespace zephira

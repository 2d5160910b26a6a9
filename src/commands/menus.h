// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"
#include "commands/commandparts.h"
#include "commands/needs.h"

#include <QHash>
#include <QObject>

#include <span>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace zephira {

struct MenuItem;

/// Builds the menu tree from its table: the menus of the bar, and the pop-up menus. The objectName of each menu and
/// entry is its name. The five designer menus are disabled until the visual view opens.
class Menus : public QObject, public CheckMarks
{
    Q_OBJECT

public:
    Menus(QMenuBar *bar, QObject *owner);

    /// By name; nullptr if the tree has no such name, or it belongs to something of another kind.
    QAction *action(const QString &name) const { return m_actions.value(name); }
    QAction *action(QStringView name) const { return action(name.toString()); }
    QMenu *menu(const QString &name) const { return m_menus.value(name); }
    QMenu *menu(QStringView name) const { return menu(name.toString()); }

    // CheckMarks; the name is that of an entry.
    bool isChecked(QStringView entry) const override;
    void setChecked(QStringView entry, bool checked) override;

    /// Adds the menus that the code view's context menu shows, once. Entries for the text have their keys in the widget
    /// `text`, the others in its window.
    void addTextMenus(QWidget &text);
    /// Puts these menus into a context menu.
    void offerTextMenus(QMenu &menu) const;

    /// Enables or disables every menu and entry whose row needs something.
    void setMet(Need need, bool met);
    /// Adds an entry to a menu array, behind the elements that the table has or that were added before. Its name is that
    /// of the array with the number of the element.
    QAction *addElement(QStringView menu, QStringView array, int element, const Command &command);

Q_SIGNALS:
    /// An entry was chosen, by mouse, key or shortcut. Its check mark is unchanged: the command sets it.
    void chosen(const zephira::Command &command);

private:
    QMenu *makeMenu(const MenuItem &item, QWidget *parent);
    void fill(QMenu *menu, std::span<const MenuItem> items);
    void addEntry(QMenu *menu, const MenuItem &item);
    void listen(QAction *entry, const Command &command);
    void setMet(std::span<const MenuItem> items, Need need, bool met);

    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
    bool m_hasTextMenus = false;
    bool m_showsSource = true;
};

} // namespace zephira

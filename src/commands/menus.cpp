// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menus.h"

#include "commands/icons.h"
#include "commands/menutable.h"
#include "commands/tagsmenu.h"
#include "commands/texttable.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Icons cost more than all the rest of a menu, so they wait until it opens for the first time.
void setIconsAtFirstOpening(QMenu *menu, QAction *action, QStringView icon)
{
    if (icon.isEmpty())
        return;
    QObject::connect(menu, &QMenu::aboutToShow, action, [action, icon] {
        if (action->icon().isNull())
            action->setIcon(iconFor(icon));
    });
}

/// The tag menu as menu rows.
std::vector<MenuItem> tagItems()
{
    std::vector<MenuItem> items;
    for (const QuickTag &tag : tagsMenu())
        items.push_back({tag.key, tag.label, tag.shortcut, tag.icon, {}, {InsertsTag{&tag}}, tag.form()});
    return items;
}

QString tagStatusTip(const QuickTag &tag)
{
    return tag.form().isEmpty() ? u"Insert "_s % tag.before % tag.after : u"Build a tag from its attributes"_s;
}

} // namespace

Menus::Menus(QMenuBar *bar, QObject *owner) : QObject(owner)
{
    for (const MenuItem &item : menuBarTable()) {
        if (item.kind == MenuItem::Kind::Bar) {
            QAction *text = bar->addAction(captionOf(item));
            text->setObjectName(item.name);
            text->setEnabled(false);
            m_actions.insert(text->objectName(), text);
        } else {
            bar->addMenu(makeMenu(item, bar));
        }
    }
    fill(menu(menuname::tags), tagItems());
    for (const QuickTag &tag : tagsMenu())
        action(tag.key.toString())->setStatusTip(tagStatusTip(tag));
    for (const MenuItem &item : popupTable())
        makeMenu(item, bar);
    setMet(Need::VisualView, false);
    setMet(Need::Plugin, false);
}

QMenu *Menus::makeMenu(const MenuItem &item, QWidget *parent)
{
    QMenu *menu = new QMenu(captionOf(item), parent);
    menu->setObjectName(item.name);
    menu->setToolTipsVisible(true);
    m_menus.insert(menu->objectName(), menu);
    fill(menu, item.children);
    return menu;
}

void Menus::fill(QMenu *menu, std::span<const MenuItem> items)
{
    for (const MenuItem &item : items) {
        if (item.kind == MenuItem::Kind::Menu)
            menu->addMenu(makeMenu(item, menu));
        else
            addEntry(menu, item);
    }
}

void Menus::addEntry(QMenu *menu, const MenuItem &item)
{
    QAction *entry = new QAction(captionOf(item), menu);
    entry->setObjectName(item.name);
    entry->setSeparator(item.kind == MenuItem::Kind::Divider);
    entry->setCheckable(item.kind == MenuItem::Kind::Check);
    entry->setEnabled(item.kind != MenuItem::Kind::Title);
    entry->setStatusTip(tipOf(item));
    if (!item.shortcut.isEmpty())
        entry->setShortcut(QKeySequence::fromString(item.shortcut.toString(), QKeySequence::PortableText));
    // On macOS, "About" and "Options" would otherwise be moved to other menus because of their words.
    entry->setMenuRole(QAction::NoRole);
    setIconsAtFirstOpening(menu, entry, item.icon);
    menu->addAction(entry);
    if (item.name.isEmpty() || entry->isSeparator())
        return;
    listen(entry, item.command);
}

QAction *Menus::addElement(QStringView menu, QStringView array, int element, const Command &command)
{
    QMenu *owner = this->menu(menu);
    auto *entry = new QAction(owner);
    entry->setObjectName(array.toString() + u'_' + QString::number(element));
    entry->setMenuRole(QAction::NoRole);
    owner->addAction(entry);
    listen(entry, command);
    return entry;
}

void Menus::listen(QAction *entry, const Command &command)
{
    m_actions.insert(entry->objectName(), entry);
    connect(entry, &QAction::triggered, this, [this, entry, command] {
        // Only the command sets the check mark: undo what the click did to it.
        if (entry->isCheckable())
            entry->setChecked(!entry->isChecked());
        Q_EMIT chosen(command);
    });
}

bool Menus::isChecked(QStringView entry) const
{
    return m_actions[entry.toString()]->isChecked();
}

void Menus::setChecked(QStringView entry, bool checked)
{
    m_actions[entry.toString()]->setChecked(checked);
}

void Menus::addTextMenus(QWidget &text)
{
    for (const MenuItem &item : textMenuTable()) {
        const QMenu *made = makeMenu(item, &text);
        const QList<QAction *> entries = made->findChildren<QAction *>();
        for (QAction *entry : entries) {
            const MenuItem *row = findMenuItem(entry->objectName());
            if (!row)
                continue;
            // What needs the text is asked for there. The other entries' keys also work while another view hides the text.
            const bool isForText = row->need == Need::SourceView;
            entry->setShortcutContext(isForText ? Qt::WidgetShortcut : Qt::WindowShortcut);
            (isForText ? &text : text.window())->addAction(entry);
        }
    }
    m_hasTextMenus = true;
    setMet(textMenuTable(), Need::SourceView, m_showsSource);
}

void Menus::offerTextMenus(QMenu &menu) const
{
    for (const MenuItem &item : textMenuTable())
        menu.addMenu(this->menu(item.name));
}

void Menus::setMet(Need need, bool met)
{
    setMet(menuBarTable(), need, met);
    setMet(popupTable(), need, met);
    if (need == Need::SourceView)
        m_showsSource = met;
    if (m_hasTextMenus)
        setMet(textMenuTable(), need, met);
}

void Menus::setMet(std::span<const MenuItem> items, Need need, bool met)
{
    for (const MenuItem &item : items) {
        setMet(item.children, need, met);
        if (item.need != need)
            continue;
        if (item.kind == MenuItem::Kind::Menu)
            menu(item.name)->setEnabled(met); // Its entry in the menu bar follows.
        else
            action(item.name)->setEnabled(met);
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pluginmenu.h"

#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/appcontext.h"
#include "core/designer.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "plugins/extensionscan.h"
#include "widgets/filelistbox.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString entryName(int entry)
{
    return u"%1_%2"_s.arg(menuname::pluginEntries).arg(entry);
}

} // namespace

PluginMenu::PluginMenu(const AppContext &context, Menus &menus, QWidget *window)
    : m_context(context)
    , m_menus(menus)
    , m_files(new FileListBox(window))
    , m_folder(pluginKind, context.appPath)
    , m_run(m_folder)
{
    m_files->setObjectName(u"filePlugin"_s);
}

void PluginMenu::scan()
{
    m_files->setPath(m_folder.path());
    m_files->setPattern(modulePattern.toString());
    const QString reason = scanPlugins(
        m_folder, m_files->entries(), [this](const QString &caption, const QString &tag) { addEntry(caption, tag); },
        [this](const QString &text) { m_text = text; });
    // No message tells of a bad module; who misses an entry and points at the menu finds it here.
    m_menus.menu(menuname::plugins)->menuAction()->setStatusTip(reason);
}

void PluginMenu::addEntry(const QString &caption, const QString &tag)
{
    QAction *entry = m_menus.action(entryName(m_count));
    if (!entry)
        entry = m_menus.addElement(menuname::plugins, menuname::pluginEntries, m_count, {RunsPlugin{m_count}});
    entry->setText(caption);
    entry->setData(tag);
    if (added)
        added(entry, tag);
    ++m_count;
    // The first entry, which the table closes, and the menu.
    m_menus.setMet(Need::Plugin, true);
    m_menus.menu(menuname::plugins)->setEnabled(true);
}

void PluginMenu::runPlugin(int entry)
{
    const QString tag = m_menus.action(entryName(entry))->data().toString();
    m_run.run(tag,
              {.useText =
                   [this](const QString &text) {
                       m_text = text;
                       m_context.designer.finishLeaving();
                       m_context.editor.replaceSelections(
                           [&text](const QString &selected) { return QString(selected + text); });
                   },
               .setLanguage = [this](int row) { m_context.document.setLanguageRow(row); }});
}

} // namespace zephira

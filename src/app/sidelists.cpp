// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sidelists.h"

#include "app/lateparts.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/appcontext.h"
#include "panes/asptagtree.h"
#include "panes/customtabs.h"
#include "panes/ihtmltaglist.h"
#include "panes/scriptlibrary.h"
#include "panes/sidepane.h"
#include "panes/sidetabbar.h"
#include "tags/tagtree.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace zephira {

SideLists::SideLists(const AppContext &context, const Menus &menus, SidePane &pane, LateParts &late)
    : m_context(context), m_menus(menus), m_pane(pane), m_late(late), m_fileNumber(context.files)
{
    m_late.add([this] { makeTagLists(); });
    m_late.add([this] { makeScripts(); });
    m_late.add([this] { makeCustomTabs(); });
}

void SideLists::makeTagLists()
{
    m_tags = new TagTree(m_context);
    m_aspTags = new AspTagTree(m_context);
    m_pane.setPage(u"html"_s, m_tags);
    m_pane.setPage(u"asp"_s, m_aspTags);
    m_pane.setPage(u"ihtml"_s, new IhtmlTagList(m_context));
}

void SideLists::makeScripts()
{
    m_scripts = new ScriptLibrary(m_context);
    m_pane.setPage(u"scripts"_s, m_scripts);
}

void SideLists::makeCustomTabs()
{
    m_custom = new CustomTabs(m_context, m_fileNumber, *m_menus.menu(menuname::customTab), &m_pane);
    for (int tab = 1; tab <= CustomTabs::count; ++tab) {
        QWidget *list = m_custom->list(tab);
        m_pane.setPage(list->objectName(), list, SidePane::Fill::AfterShowing,
                       [custom = m_custom, tab] { custom->load(tab); });
    }
    m_pane.tabs()->setTitles([custom = m_custom](const QString &key) {
        const bool isCustom = key.size() == 2 && key.startsWith(u'c') && key.back().isDigit();
        return isCustom ? custom->title(key.back().digitValue()) : QString();
    });
}

CustomTabs &SideLists::customTabs()
{
    m_late.finish();
    return *m_custom;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sidelists.h"

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

SideLists::SideLists(const AppContext &context, const Menus &menus, SidePane &pane)
    : m_fileNumber(context.files)
    , m_tags(new TagTree(context))
    , m_aspTags(new AspTagTree(context))
    , m_scripts(new ScriptLibrary(context))
    , m_custom(new CustomTabs(context, m_fileNumber, *menus.menu(menuname::customTab), &pane))
{
    pane.setPage(u"html"_s, m_tags);
    pane.setPage(u"asp"_s, m_aspTags);
    pane.setPage(u"ihtml"_s, new IhtmlTagList(context));
    pane.setPage(u"scripts"_s, m_scripts);

    for (int tab = 1; tab <= CustomTabs::count; ++tab) {
        QWidget *list = m_custom->list(tab);
        pane.setPage(list->objectName(), list, SidePane::Fill::AfterShowing,
                     [custom = m_custom, tab] { custom->load(tab); });
    }
    pane.tabs()->titleOf = [custom = m_custom](const QString &key) {
        const bool isCustom = key.size() == 2 && key.startsWith(u'c') && key.back().isDigit();
        return isCustom ? custom->title(key.back().digitValue()) : QString();
    };
}

} // namespace zephira

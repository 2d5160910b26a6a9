// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sidecommands.h"

#include "app/quickview.h"
#include "app/sidelists.h"
#include "commands/palette.h"
#include "core/appcontext.h"
#include "core/documenthost.h"
#include "core/quickviewer.h"
#include "desktop/modalformopener.h"
#include "panes/customtabs.h"
#include "panes/selectorlist.h"
#include "panes/sidepane.h"
#include "tools/spelling/checkspelling.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int smallestListWidth = 160;
constexpr int largestListHeight = 240;
constexpr int roomForScrollBar = 40;

} // namespace

void SideCommands::selectSideTab(SideTab tab)
{
    m_parts.pane.click(static_cast<int>(tab) - 1);
}

void SideCommands::addCustomEntry()
{
    m_parts.lists.customTabs().addEntry();
}

void SideCommands::setSelectorListVisible(bool visible)
{
    SelectorList &list = m_parts.selectors();
    if (visible) {
        const QSize room = list.parentWidget()->size();
        list.setGeometry(0, 0, qBound(smallestListWidth, list.sizeHintForColumn(0) + roomForScrollBar, room.width()),
                         qMin(largestListHeight, room.height()));
        list.raise();
    } else if (list.hasFocus()) {
        m_parts.codeView.setFocus();
    }
    list.setVisible(visible);
    if (visible)
        list.setFocus();
    m_parts.palette.setSelectorPressed(visible);
}

bool SideCommands::isSelectorPressed() const
{
    return m_parts.palette.isSelectorPressed();
}

void SideCommands::setSelectorPressed(bool pressed)
{
    m_parts.palette.setSelectorPressed(pressed);
}

void SideCommands::showReadme()
{
    if (QuickViewer *viewer = quickViewer(m_parts.forms))
        viewer->showText(m_parts.context.appPath + u"/readme.txt"_s);
}

void SideCommands::showFtp()
{
    const QString form = u"frmmainftp"_s;
    m_parts.forms.openModeless(form);
    QWidget *window = m_parts.forms.openForm(form);
    const DocumentHost &document = m_parts.context.document;
    if (window && hasProject(document))
        window->setProperty("LocalFolder", document.projectPath());
}

void SideCommands::checkSpelling()
{
    zephira::checkSpelling(m_parts.context, m_parts.spelling);
}

} // namespace zephira

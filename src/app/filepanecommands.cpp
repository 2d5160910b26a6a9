// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/filepanecommands.h"

#include "app/quickview.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/configuration.h"
#include "core/errorstyles.h"
#include "core/inserter.h"
#include "core/languages.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "core/quickviewer.h"
#include "core/relativepath.h"
#include "document/document.h"
#include "panes/filepane.h"
#include "panes/sidetabbar.h"
#include "views/workspaceviews.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace zephira {

FilePaneCommands::FilePaneCommands(const AppContext &context, const Parts &parts, QObject *owner)
    : QObject(owner), m_context(context), m_parts(parts)
{
    connect(&parts.pane, &FilePane::fileActivated, this, &FilePaneCommands::openListedFile);
    connect(&parts.pane, &FilePane::menuWanted, this, &FilePaneCommands::showMenu);
    connect(&parts.tabs, &SideTabBar::fileDropped, this, &FilePaneCommands::openDroppedFile);
}

void FilePaneCommands::openListedFile()
{
    ignoringErrors({
        [this] { m_parts.document.flushDesigner(); },
        [this] { m_parts.document.discardPreview(); },
        [this] { m_parts.document.OpenAFile(); },
        [this] { m_parts.views.selectTab(WorkspaceView::Code); },
    });
}

void FilePaneCommands::updateMenu()
{
    m_parts.menus.setMet(Need::ListedFile, !m_parts.pane.fileList().fileName().isEmpty());
}

void FilePaneCommands::showMenu(const QPoint &place)
{
    updateMenu();
    m_parts.menus.menu(menuname::fileList)->popup(place);
}

void FilePaneCommands::showInQuickView()
{
    const QString name = m_parts.pane.selectedFile();
    if (name.isEmpty())
        return;
    if (QuickViewer *viewer = quickViewer(m_parts.forms))
        viewer->showFile(withSeparator(m_parts.pane.fileList().path()) + name);
}

void FilePaneCommands::insertLink()
{
    const QString name = m_parts.pane.selectedFile();
    if (name.isEmpty())
        return;
    // Without a project path there is no base for a relative link.
    tellingErrors(m_context.prompts, u"frmmain"_s, u"mnuinslink_Click"_s, {[&] {
                      const QString path = withSeparator(m_parts.pane.fileList().path()) + name;
                      const QString link = MakeRelativePath(m_parts.pane.projectPath(), path);
                      m_context.inserter.InsertAtCaret(u"<a href=\""_s + link + u"\">"_s + name + u"</a>"_s);
                  }});
}

void FilePaneCommands::editFilters()
{
    Configuration &configuration = m_context.configuration;
    QString filters =
        m_context.prompts
            .input({u"Please enter the extensions of the files you want to show, *.* indicates all, use ; to "
                    "seperate extensions, type RESET (all caps) to reset filters to Application Defaults"_s,
                    u"Filters"_s, configuration.value(Setting::FileFilters)})
            .value_or(QString());
    if (filters.isEmpty())
        return;
    if (filters == u"RESET"_s)
        filters = defaultFilters();
    if (!configuration.setValue(Setting::FileFilters, filters))
        m_context.prompts.tell(u"The filters could not be saved."_s, {}, Question::Icon::Exclamation);
    m_parts.pane.fileList().setPattern(configuration.value(Setting::FileFilters));
}

void FilePaneCommands::openDroppedFile(const QString &path)
{
    if (!m_parts.document.openDropped(path))
        return;
    m_parts.pane.showFolder(folderOf(path));
    m_parts.pane.selectFile(fileTitleOf(path));
    m_parts.document.SetSyntax();
}

} // namespace zephira

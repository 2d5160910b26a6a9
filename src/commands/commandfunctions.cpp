// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandfunctions.h"

#include "commands/commandparts.h"
#include "commands/menutable.h"
#include "core/clock.h"
#include "core/configuration.h"
#include "core/designer.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/fontsettings.h"
#include "core/formopener.h"
#include "core/prompts.h"
#include "core/settings.h"
#include "core/usersettings.h"
#include "views/workspaceviews.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace zephira {

void insertTimeAndDate(const AppContext &context)
{
    const QDateTime now = context.clock.now();
    const QLocale system = QLocale::system();
    context.editor.setSelText(context.editor.selText() + system.toString(now.time(), QLocale::ShortFormat) + u' '
                              + system.toString(now.date(), QLocale::ShortFormat));
}

void chooseFont(const AppContext &context)
{
    const std::optional<FontChoice> choice = context.prompts.font(context.editor.editorFont());
    if (!choice)
        return;
    context.editor.setEditorFont(*choice);

    // The control may adjust the choice, so the font that it now has is the one to save.
    static_cast<void>(context.configuration.setValues(fontChanges(context.editor.editorFont())));
}

void openFtpClient(const AppContext &context)
{
    context.forms.openModeless(u"frmmainftp"_s);
}

void weighDocument(const AppContext &context)
{
    // The document may be private, whatever folder the copy lies in.
    constexpr int ownerOnly = 0600;
    const QString copy = context.appPath + u"/ldtemp.html"_s;
    // A link there, or a file that others may read, is not where it should go.
    [[maybe_unused]] const Result<void> removed = context.files.remove(copy);
    const Result<void> written = context.files.write(copy, context.editor.text().toUtf8(), ownerOnly);
    if (written)
        context.forms.openModal(u"frmDocSize"_s);
    else
        tellError(context.prompts, written.error());
}

void insertFormButton(const AppContext &context)
{
    endingQuietly([&] { context.designer.pasteHtml(u"<BUTTON TITLE=Button>Button!</BUTTON>"_s); });
}

void undoFromToolbar(const AppContext &context)
{
    if (context.designer.isShowing())
        context.designer.execCommand(DesignerCommand::Undo);
    else if (context.editor.canUndo())
        context.editor.undo();
    else
        context.prompts.tell(u"Sorry, there is nothing left to UNDO"_s, u"UNDO"_s);
}

void redoFromToolbar(const AppContext &context)
{
    // In visual mode this button undoes, too; only the menu entry redoes. It has always been so.
    if (context.designer.isShowing())
        context.designer.execCommand(DesignerCommand::Undo);
    else if (context.editor.canRedo())
        context.editor.redo();
    else
        context.prompts.tell(u"Sorry, there is nothing left to redo"_s, u"REDO"_s);
}

void deleteSelectedText(const AppContext &context)
{
    context.editor.setSelText({});
}

void toggleHighlightedLines(const CommandParts &parts)
{
    constexpr QStringView entry = menuname::highlightedLines;
    const bool on = !parts.marks.isChecked(entry);
    writeSwitch(parts.context.configuration, Setting::HighlightLine, on);
    parts.marks.setChecked(entry, on);
    parts.window.setHighlightMode(on ? 1 : 0);
    // When switched on, the highlight appears with the next change of the selection.
    if (!on)
        parts.context.editor.setHighlightedLine(-1);
}

void toggleTips(const CommandParts &parts)
{
    constexpr QStringView entry = menuname::tipOfTheDay;
    const bool on = !parts.marks.isChecked(entry);
    writeSwitch(parts.context.settings, UserSetting::ShowTips, on);
    parts.marks.setChecked(entry, on);
}

void showPreview(const CommandParts &parts)
{
    parts.views.selectTab(WorkspaceView::Preview);
}

void showQuickTags(const CommandParts &parts)
{
    parts.panes.selectSideTab(SideTab::HtmlTags);
}

} // namespace zephira

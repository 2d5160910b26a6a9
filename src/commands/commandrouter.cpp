// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandrouter.h"

#include "commands/browserpreview.h"
#include "commands/helppages.h"
#include "commands/menutable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "commands/windowcommands.h"
#include "core/clock.h"
#include "core/configuration.h"
#include "core/designer.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/formopener.h"
#include "core/prompts.h"
#include "core/settingsnames.h"
#include "core/usersettings.h"

#include <QLocale>
#include <QStringBuilder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

template<typename Row, std::size_t N>
const Row *rowOf(const Row (&rows)[N], QStringView name)
{
    const auto row = std::ranges::find_if(rows, [&](const Row &candidate) { return candidate.name == name; });
    return row == std::end(rows) ? nullptr : row;
}

/// Commands that are the window's own.
struct WindowCommand {
    QStringView name;
    void (WindowCommands::*run)();
};

constexpr WindowCommand windowCommands[] = {
    {u"mnunewdoc", &WindowCommands::newDocument},
    {u"mnufromtemp", &WindowCommands::newFromTemplate},
    {u"mnunewwindow", &WindowCommands::newWindow},
    {u"open", &WindowCommands::openDocument},
    {u"save", &WindowCommands::saveDocument},
    {u"saveas", &WindowCommands::saveDocumentAs},
    {u"mnusavetemplate", &WindowCommands::saveAsTemplate},
    {u"print", &WindowCommands::printDocument},
    {u"clearclip", &WindowCommands::clearClipboard},
    {u"exit", &WindowCommands::exitNow},
    {u"mnunextview", &WindowCommands::nextView},
    {u"readme", &WindowCommands::showReadme},
    {u"mnuupdate", &WindowCommands::updateProgram},
};

/// The same for the standard toolbar, whose keys are shorter.
constexpr WindowCommand standardCommands[] = {
    {u"new", &WindowCommands::newDocument},
    {u"open", &WindowCommands::openDocument},
    {u"save", &WindowCommands::saveDocument},
    {u"print", &WindowCommands::printDocument},
};

constexpr WindowCommand formattingCommands[] = {
    {u"ftp", &WindowCommands::showFtp},
    {u"reset", &WindowCommands::revert},
};

/// Commands of the view that shows: of the designer in visual mode, else of the code view.
struct EditCommand {
    QStringView name;
    DesignerCommand designer;
    void (EditingControl::*run)();
};

constexpr EditCommand editCommands[] = {
    {u"undo", DesignerCommand::Undo, &EditingControl::undo},
    {u"redo", DesignerCommand::Redo, &EditingControl::redo},
    {u"cut", DesignerCommand::Cut, &EditingControl::cut},
    {u"copy", DesignerCommand::Copy, &EditingControl::copy},
    {u"paste", DesignerCommand::Paste, &EditingControl::paste},
    {u"delete", DesignerCommand::Delete, &EditingControl::clearSelection},
};

/// Commands that the code view has built in.
struct CodeViewCommand {
    QStringView name;
    EditorCommand command;
};

constexpr CodeViewCommand codeViewCommands[] = {
    {u"find", EditorCommand::FindDialog},
    {u"findnext", EditorCommand::FindNext},
    {u"mnreplace", EditorCommand::FindReplaceDialog},
    {u"goto", EditorCommand::GoToLine},
    {u"selectall", EditorCommand::SelectAll},
};

/// The one button of the formatting toolbar beside those that wrap the selection that visual mode refuses.
constexpr QStringView tagButton = u"htmltags";

} // namespace

/// A command that the router does itself.
struct CommandRouter::OwnCommand {
    QStringView name;
    void (CommandRouter::*run)();
};

CommandRouter::CommandRouter(const AppContext &context, WindowCommands &window)
    : m_context(context), m_window(window), m_palette(context, window), m_formatting(context)
{}

void CommandRouter::menu(const QString &name)
{
    // Each name is in one of the tables, so that their order doesn't matter, but for forms: a command that needs a form
    // as a part of its work comes first.
    runWindowCommand(name) || runEditingCommand(name) || runCodeViewCommand(name) || runOwnCommand(name) || runTag(name)
        || openFormOf(name);
}

bool CommandRouter::runWindowCommand(const QString &name)
{
    const WindowCommand *command = rowOf(windowCommands, name);
    if (command)
        (m_window.*command->run)();
    return command;
}

bool CommandRouter::runEditingCommand(const QString &name)
{
    const EditCommand *command = rowOf(editCommands, name);
    if (!command)
        return false;
    if (m_context.designer.isShowing())
        m_context.designer.execCommand(command->designer);
    else
        (m_context.editor.*command->run)();
    return true;
}

bool CommandRouter::runCodeViewCommand(const QString &name)
{
    const CodeViewCommand *command = rowOf(codeViewCommands, name);
    if (!command)
        return false;
    if (!isRefused(Refusal::CodeView, m_context.designer, m_context.prompts))
        m_context.editor.executeCmd(command->command, -1);
    return true;
}

bool CommandRouter::runOwnCommand(const QString &name)
{
    static constexpr OwnCommand commands[] = {
        {u"Timedate", &CommandRouter::insertTimeAndDate},
        {u"highlightlines", &CommandRouter::toggleHighlightedLines},
        {u"mnuviewtip", &CommandRouter::toggleTips},
        {u"font", &CommandRouter::chooseFont},
        {u"helpme", &CommandRouter::openHelp},
        {u"website", &CommandRouter::openWebsite},
        {u"mnuftpclient", &CommandRouter::openFtpClient},
        {u"mnufcomp", &CommandRouter::compactSource},
        {u"mnuformath", &CommandRouter::indentSource},
        {u"mnufsimple", &CommandRouter::simplifySource},
    };
    const OwnCommand *command = rowOf(commands, name);
    if (command)
        (this->*command->run)();
    return command;
}

bool CommandRouter::runTag(const QString &name)
{
    const QuickTag *tag = findTagsEntry(name);
    if (!tag)
        return false;
    if (tag->kind == TagKind::TagEditor)
        m_window.openTagEditor(tag->before.toInt());
    else
        m_context.editor.setSelText(quickTagText(*tag, m_context.editor.selText()));
    return true;
}

bool CommandRouter::openFormOf(const QString &name)
{
    const MenuItem *item = findMenuItem(name);
    if (!item || item->form.isEmpty())
        return false;
    m_context.forms.openModal(item->form.toString());
    return true;
}

void CommandRouter::tBar(const QString &key)
{
    static constexpr OwnCommand ownCommands[] = {
        {u"undo", &CommandRouter::undoFromToolbar},
        {u"redo", &CommandRouter::redoFromToolbar},
    };
    if (const WindowCommand *command = rowOf(standardCommands, key))
        (m_window.*command->run)();
    else if (const OwnCommand *own = rowOf(ownCommands, key))
        (this->*own->run)();
    else if (key == u"delete")
        m_context.editor.setSelText({});
    else if (const EditCommand *edit = rowOf(editCommands, key))
        (m_context.editor.*edit->run)();
}

void CommandRouter::undoFromToolbar()
{
    if (m_context.designer.isShowing())
        m_context.designer.execCommand(DesignerCommand::Undo);
    else if (m_context.editor.canUndo())
        m_context.editor.undo();
    else
        m_context.prompts.tell(u"Sorry, there is nothing left to UNDO"_s, u"UNDO"_s);
}

void CommandRouter::redoFromToolbar()
{
    // In visual mode this button undoes; only the menu entry redoes. Both have always been so.
    if (m_context.designer.isShowing())
        m_context.designer.execCommand(DesignerCommand::Undo);
    else if (m_context.editor.canRedo())
        m_context.editor.redo();
    else
        m_context.prompts.tell(u"Sorry, there is nothing left to redo"_s, u"REDO"_s);
}

void CommandRouter::toolbar1(const QString &key)
{
    const ToolButton *button = findFormattingButton(key);
    if (!button)
        return;
    const bool wraps = !button->before.isEmpty();
    if ((wraps || key == tagButton) && isRefused(Refusal::CodeViewForNow, m_context.designer, m_context.prompts))
        return;
    static constexpr OwnCommand ownCommands[] = {
        {u"preview", &CommandRouter::showPreview},
        {u"loadtime", &CommandRouter::weighDocument},
    };
    if (wraps)
        m_context.editor.setSelText(button->before % m_context.editor.selText() % button->after);
    else if (const WindowCommand *command = rowOf(formattingCommands, key))
        (m_window.*command->run)();
    else if (const OwnCommand *own = rowOf(ownCommands, key))
        (this->*own->run)();
    else
        m_context.forms.openModal(button->form.toString());
}

void CommandRouter::pullDown(const QString &key)
{
    const PullDownEntry *entry = findPullDownEntry(key);
    if (!entry || isRefused(Refusal::CodeView, m_context.designer, m_context.prompts))
        return;
    static constexpr OwnCommand ownCommands[] = {
        {u"dtw", &CommandRouter::openTagEditor},         {u"dqw", &CommandRouter::showQuickTags},
        {u"pie", &CommandRouter::previewInNamedBrowser}, {u"pidb", &CommandRouter::previewInDefaultBrowser},
        {u"picb", &CommandRouter::showPreview},
    };
    if (const OwnCommand *own = rowOf(ownCommands, key))
        (this->*own->run)();
    else
        m_context.forms.openModal(entry->form.toString());
}

void CommandRouter::insertTimeAndDate()
{
    if (isRefused(Refusal::CodeView, m_context.designer, m_context.prompts))
        return;
    const QDateTime now = m_context.clock.now();
    const QLocale system = QLocale::system();
    m_context.editor.setSelText(m_context.editor.selText() + system.toString(now.time(), QLocale::ShortFormat) + u' '
                                + system.toString(now.date(), QLocale::ShortFormat));
}

void CommandRouter::toggleHighlightedLines()
{
    const QString entry = u"highlightlines"_s;
    const bool on = !m_window.isChecked(entry);
    m_context.configuration.setValue(u"options"_s, u"highlight"_s, on ? u"1"_s : u"0"_s);
    m_window.setChecked(entry, on);
    m_window.setHighlightMode(on ? 1 : 0);
    // Switched on, the line is drawn from the next change of the selection on.
    if (!on)
        m_context.editor.setHighlightedLine(-1);
}

void CommandRouter::toggleTips()
{
    const QString entry = u"mnuviewtip"_s;
    const bool on = !m_window.isChecked(entry);
    m_context.settings.SaveSetting(executableBranch(), optionsSection(), showTipsKey(), on ? u"1"_s : u"0"_s);
    m_window.setChecked(entry, on);
}

void CommandRouter::chooseFont()
{
    const std::optional<FontChoice> choice = m_context.prompts.font(m_context.editor.editorFont());
    if (!choice)
        return;
    m_context.editor.setEditorFont(*choice);

    // What is kept is what the control made of the choice.
    const FontChoice font = m_context.editor.editorFont();
    const auto flag = [](bool value) { return value ? u"True"_s : u"False"_s; };
    const std::pair<QString, QString> values[] = {
        {u"Bold"_s, flag(font.bold)},
        {u"Italic"_s, flag(font.italic)},
        {u"Name"_s, font.name},
        {u"Size"_s, QString::number(font.size)},
        {u"Strikethrough"_s, flag(font.strikethrough)},
        {u"Underline"_s, flag(font.underline)},
    };
    for (const auto &[key, value] : values)
        m_context.configuration.setValue(u"Font"_s, key, value);
}

void CommandRouter::openHelp()
{
    zephira::openHelp(m_context);
}

void CommandRouter::openWebsite()
{
    zephira::openWebsite(m_context);
}

void CommandRouter::openFtpClient()
{
    m_context.forms.openModeless(u"frmmainftp"_s);
}

void CommandRouter::showPreview()
{
    m_window.selectView(2);
}

void CommandRouter::showQuickTags()
{
    m_window.selectSideTab(3);
}

void CommandRouter::openTagEditor()
{
    m_window.openTagEditor(0);
}

void CommandRouter::previewInNamedBrowser()
{
    zephira::previewInNamedBrowser(m_context, m_window);
}

void CommandRouter::previewInDefaultBrowser()
{
    zephira::previewInDefaultBrowser(m_context, m_window);
}

void CommandRouter::weighDocument()
{
    const Result<void> written =
        m_context.files.write(m_context.appPath + u"/ldtemp.html"_s, m_context.editor.text().toUtf8());
    if (written)
        m_context.forms.openModal(u"frmDocSize"_s);
    else
        tellError(m_context.prompts, written.error());
}

} // namespace zephira

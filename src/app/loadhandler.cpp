// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/loadhandler.h"

#include "app/editorfont.h"
#include "app/frmmain.h"
#include "app/pluginmenu.h"
#include "app/sidelists.h"
#include "app/startdecision.h"
#include "app/statuspanels.h"
#include "commands/designerbar.h"
#include "commands/menus.h"
#include "commands/menutable.h"
#include "core/configuration.h"
#include "core/documenthost.h"
#include "core/editorcommand.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/paths.h"
#include "core/usersettings.h"
#include "desktop/formposition.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "panes/asptagtree.h"
#include "panes/filepane.h"
#include "panes/scriptlibrary.h"
#include "panes/selectorlist.h"
#include "syntax/languageregistry.h"
#include "tags/tagtree.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Commands of the editing control whose keys are needed for menus, in the order in which they are unregistered.
constexpr EditorCommand commandsWithoutKeys[] = {
    EditorCommand::CutByKey,  EditorCommand::PasteByKey,   EditorCommand::CopyByKey, EditorCommand::FindNextByKey,
    EditorCommand::FindByKey, EditorCommand::ReplaceByKey, EditorCommand::GoToByKey,
};

HandlerError startError(const Error &error)
{
    return {u"Zephira can't start: "_s + error.sentence};
}

} // namespace

const LoadHandler::Step LoadHandler::steps[] = {
    {u"restorePlacement", &LoadHandler::restorePlacement},
    {u"setHelpFile", &LoadHandler::setHelpFile},
    {u"setFilePattern", &LoadHandler::setFilePattern},
    {u"recordProgramFolder", &LoadHandler::recordProgramFolder},
    {u"fetchSelection", &LoadHandler::fetchSelection},
    {u"fillDesignerFonts", &LoadHandler::fillDesignerFonts},
    {u"disableDesigner", &LoadHandler::disableDesigner},
    {u"readRootSelect", &LoadHandler::readRootSelect},
    {u"createEditorGlobals", &LoadHandler::createEditorGlobals},
    {u"readDisplayModes", &LoadHandler::readDisplayModes},
    {u"applyFont", &LoadHandler::applyFont},
    {u"applyDisplayModes", &LoadHandler::applyDisplayModes},
    {u"applyColourTable", &LoadHandler::applyColourTable},
    {u"registerLanguages", &LoadHandler::registerLanguages},
    {u"removeHotKeys", &LoadHandler::removeHotKeys},
    {u"readStyleSelectors", &LoadHandler::readStyleSelectors},
    {u"rootScriptFolder", &LoadHandler::rootScriptFolder},
    {u"fillTagTree", &LoadHandler::fillTagTree},
    {u"scanPlugins", &LoadHandler::scanPlugins},
    {u"clearModified", &LoadHandler::clearModified},
    {u"readAspTags", &LoadHandler::readAspTags},
    {u"openArgument", &LoadHandler::openArgument},
};

LoadHandler::LoadHandler(frmmain &window, const QString &argument) : m_window(window), m_argument(argument) {}

void LoadHandler::run()
{
    for (const Step &step : steps) {
        m_window.noteStartStep(QStringView(step.name).toString());
        (this->*step.run)();
    }
}

int LoadHandler::number(Setting setting) const
{
    const WindowServices &services = m_window.services();
    return wholeNumber(services.configuration, setting, services.iniFile);
}

/// The lines of an installed list without which the program can't start.
QStringList LoadHandler::dataLines(const QString &name) const
{
    const Result<QStringList> lines =
        m_window.sideLists().fileNumber().linesOf(m_window.services().appPath + u'/' + name);
    if (!lines)
        throw startError(lines.error());
    return lines.value();
}

void LoadHandler::restorePlacement()
{
    FormPosition(m_window, false, m_window.services().settings);
}

void LoadHandler::setHelpFile()
{
    m_window.setProperty("HelpFile", QString(m_window.appPath() + u"/Help.chm"_s));
}

void LoadHandler::setFilePattern()
{
    m_window.filePane().fileList().setPattern(m_window.services().configuration.value(Setting::FileFilters));
}

void LoadHandler::recordProgramFolder()
{
    UserSettings &settings = m_window.services().settings;
    if (settings.GetSetting(UserSetting::ProgramFolder) == m_window.appPath())
        return;
    settings.SaveSetting(UserSetting::ProgramVersion, QCoreApplication::applicationVersion().remove(u'.'));
    settings.SaveSetting(UserSetting::ProgramFolder, m_window.appPath());
}

void LoadHandler::fetchSelection()
{
    m_window.setSelection(m_window.rt().selection(false));
}

void LoadHandler::fillDesignerFonts()
{
    m_window.late().add([&bar = m_window.designerBar()] { bar.fillFonts(); });
}

void LoadHandler::disableDesigner()
{
    m_window.late().add([&bar = m_window.designerBar()] { bar.disableAll(); });
    QCoreApplication::processEvents();
}

void LoadHandler::readRootSelect()
{
    m_window.setRootSelect(number(Setting::RootSelection) == 1);
    m_window.filePane().setRootSelect(m_window.rootSelect());
}

void LoadHandler::createEditorGlobals()
{
    m_window.rt().globals();
}

void LoadHandler::readDisplayModes()
{
    m_window.setDisplayModes({.highlight = number(Setting::HighlightLine),
                              .lineNumber = number(Setting::LineNumbers),
                              .leftMargin = number(Setting::LeftMargin),
                              .whitespace = number(Setting::Whitespace),
                              .selBounds = number(Setting::SelectionBounds)});
    if (m_window.highlightMode() == 1)
        m_window.menus().setChecked(menuname::highlightedLines, true);
}

void LoadHandler::applyFont()
{
    EditingControl &editor = m_window.rt();
    editor.setEnableDragDrop(true);
    editor.setEditorFont(editorFont(m_window.services().configuration, editor.editorFont()));
}

void LoadHandler::applyDisplayModes()
{
    EditingControl &editor = m_window.rt();
    const DisplayModes &modes = m_window.state().modes;
    if (modes.whitespace == 1)
        editor.setDisplayWhitespace(true);
    if (modes.leftMargin == 1)
        editor.setDisplayLeftMargin(true);
    if (modes.lineNumber == 0)
        editor.setLineNumbering(false);
    if (modes.selBounds == 1)
        editor.setSelBounds(true);
}

void LoadHandler::applyColourTable()
{
    const WindowServices &services = m_window.services();
    m_window.setColours(readColours(services.configuration, services.iniFile));
    applyColours(m_window.state().colours, m_window.rt());
}

void LoadHandler::registerLanguages()
{
    m_window.rt().globals().RegisterLanguage(languageRows()[language::Perl].editorLanguage.toString(), perlLanguage());
    m_window.context().document.setLanguageRow(language::Text);
}

void LoadHandler::removeHotKeys()
{
    CodeMaxGlobals &globals = m_window.rt().globals();
    for (const EditorCommand named : commandsWithoutKeys) {
        const int command = numberOf(named);
        for (int i = globals.hotKeyCount(command) - 1; i >= 0; --i)
            globals.UnregisterHotKey(globals.hotKey(command, i));
    }
}

void LoadHandler::readStyleSelectors()
{
    m_window.late().add(
        [&window = m_window, lines = dataLines(u"deps/csssel.dat"_s)] { window.selectorList().addItems(lines); });
}

void LoadHandler::rootScriptFolder()
{
    m_window.late().add([&lists = m_window.sideLists(), folder = m_window.appPath() + u"/Scripts"_s] {
        lists.scripts().setRootFolder(folder);
    });
}

void LoadHandler::fillTagTree()
{
    const Result<QStringList> captions = TagTree::fileCaptions(m_window.context());
    if (!captions)
        throw startError(captions.error());
    m_window.late().add(
        [&lists = m_window.sideLists(), captions = captions.value()] { lists.tags().addTags(captions); });
}

void LoadHandler::scanPlugins()
{
    m_window.late().add([&plugins = m_window.plugins()] { plugins.scan(); });
}

void LoadHandler::clearModified()
{
    m_window.document().setModified(false);
}

void LoadHandler::readAspTags()
{
    m_window.late().add(
        [&lists = m_window.sideLists(), lines = dataLines(u"asptags.dat"_s)] { lists.aspTags().addLines(lines); });
}

void LoadHandler::openArgument()
{
    const QString argument = m_argument;
    if (startArgument(argument) == StartArgument::File) {
        // A path that doesn't exist becomes empty, and then nothing is opened.
        const QFileInfo file(argument);
        const QString path = file.exists() ? file.absoluteFilePath() : QString();
        m_window.context().document.setProjectPath(folderOf(path));
        if (!path.isEmpty())
            m_window.document().openAtStart(path);
        else
            m_window.panels().notice(u"The file %1 was not found."_s.arg(argument));
    }
    m_window.showLinePanels();
}

} // namespace zephira

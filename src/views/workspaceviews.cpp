// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/workspaceviews.h"

#include "core/configuration.h"
#include "core/designer.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/languages.h"
#include "core/linecolumn.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "core/usersettings.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString emptyPage = u"about:blank"_s;
const QString serverCopy = u"prevzephirafile.asp"_s;

PreviewKind previewKind(int row)
{
    const LanguageRow *language = languageRow(row);
    return language ? language->preview : PreviewKind::Unchanged;
}

/// The question before a copy of the page is saved in the server's folder under a name.
Question serverQuestion(const QString &fileName, const QString &reason = {})
{
    return {
        u"You must save your ASP document to your web servers root directory in order to continue, press OK to save "
        "this document to the directory you designated as your LOCAL web server's root directory, with the filename: "_s
            + fileName + reason,
        {},
        Question::Icon::Question,
        Question::Buttons::OkCancel};
}

} // namespace

QString previewCopyName(const QString &name)
{
    return name + u"temp."_s + extensionOf(fileTitleOf(name));
}

QString serverAddress(const QString &server, const QString &fileName)
{
    return withSlash(server) + QString::fromLatin1(QUrl::toPercentEncoding(fileName));
}

WorkspaceViews::WorkspaceViews(const AppContext &context, Browser &browser, WorkspaceWindow &window)
    : m_context(context), m_browser(browser), m_window(window)
{
    m_browser.onProcessLost([this] { m_window.notice(u"The preview's process has ended. Load the page again."_s); });
}

void WorkspaceViews::designerLost()
{
    m_window.notice(u"The designer's process has ended. The page is shown in its last known state."_s);
}

std::pair<QString, bool> WorkspaceViews::permissions() const
{
    return {hasProject(m_context.document) ? m_context.document.projectPath() : QString(), isRemoteAllowed()};
}

/// Tells browser and designer what the document's page may load.
void WorkspaceViews::prepareLoad()
{
    const auto [folder, isAllowed] = permissions();
    m_browser.setProjectFolder(folder);
    m_browser.setRemoteAllowed(isAllowed);
    m_context.designer.setProjectFolder(folder);
    m_context.designer.setRemoteAllowed(isAllowed);
    m_window.showRemoteAllowed(isAllowed);
}

/// The project folder if the document is within it: then what the user allows is remembered for the project. Otherwise
/// empty. A document without a file counts as within, because the copy that shows it is made in the project.
QString WorkspaceViews::permittedProject() const
{
    if (!hasProject(m_context.document))
        return {};
    const QString project = QDir::cleanPath(m_context.document.projectPath());
    const QString name = m_context.document.commonDialogFile();
    const bool isWithin =
        name.isEmpty() ? QFileInfo(project).isDir() : QDir::cleanPath(name).startsWith(withSlash(project));
    return isWithin ? project : QString();
}

QString WorkspaceViews::documentKey() const
{
    const QString name = m_context.document.commonDialogFile();
    return name.isEmpty() ? QString::number(m_window.documentNumber()) : name;
}

bool WorkspaceViews::isRemoteAllowed() const
{
    const QString project = permittedProject();
    return m_permittedDocuments.contains(documentKey())
        || (!project.isEmpty() && m_context.settings.GetSetting(UserSetting::RemoteContent, project, u"0"_s) == u"1"_s);
}

void WorkspaceViews::allowRemote()
{
    if (const QString project = permittedProject(); !project.isEmpty())
        m_context.settings.SaveSetting(UserSetting::RemoteContent, project, u"1"_s);
    else
        m_permittedDocuments.insert(documentKey());
    prepareLoad();
    m_browser.refresh();
}

void WorkspaceViews::forbidRemote()
{
    if (const QString project = permittedProject(); !project.isEmpty())
        m_context.settings.SaveSetting(UserSetting::RemoteContent, project, u"0"_s);
    m_permittedDocuments.remove(documentKey());
    prepareLoad();
    m_browser.refresh();
}

void WorkspaceViews::wait(std::optional<WorkspaceView> next)
{
    m_leavingFor = next;
    m_window.setWaiting(next.has_value());
}

void WorkspaceViews::finishLeaving()
{
    if (m_leavingFor)
        select(*m_leavingFor);
}

void WorkspaceViews::select(WorkspaceView view)
{
    ++m_change;
    // An earlier change is still waiting for the designer's text. It ends here, since this one overtakes it and asks for
    // the text itself if it needs it.
    if (m_leavingFor)
        wait({});
    if (view == m_current && view != WorkspaceView::Preview)
        return;
    if (!m_window.prepare(view)) {
        m_window.selectTab(WorkspaceView::Code);
        return;
    }
    prepareLoad();
    endingQuietly([&] {
        switch (view) {
        case WorkspaceView::Code:
            selectCode();
            break;
        case WorkspaceView::Preview:
            selectPreview();
            break;
        case WorkspaceView::Visual:
            selectVisual();
            break;
        }
    });
}

void WorkspaceViews::reset()
{
    endingQuietly([&] { m_context.designer.setDocumentHtml(m_context.editor.text()); });
}

/// Brings the designer's text back to the code view when another view is selected. Until the designer answers, commands
/// may arrive: they call finishLeaving(), which completes the change of view, and then go on. Returns false if another
/// change of view happened in between, which takes precedence.
bool WorkspaceViews::carryBack(WorkspaceView next)
{
    if (m_current != WorkspaceView::Visual)
        return true;
    Designer &designer = m_context.designer;
    const int change = m_change;
    wait(next);
    const auto arrive = qScopeGuard([&] {
        if (change == m_change)
            wait({});
    });
    const bool isDirty = designer.isDirty();
    const QString text = isDirty && change == m_change ? designer.documentHtml() : QString();
    const std::optional<qsizetype> caret = change == m_change ? designer.caretPlace() : std::nullopt;
    if (change != m_change)
        return false;
    if (isDirty) {
        takeText(text, designer.documentChanges());
        m_window.markModified();
        tellOfWholePage(designer.wholePage());
    }
    m_caret = caret;
    return true;
}

/// Otherwise one would wonder why lines have changed that weren't touched.
void WorkspaceViews::tellOfWholePage(WholePage whole)
{
    if (whole == WholePage::TooLarge)
        m_window.notice(u"This page is very large: it was written anew as a whole, not only what was changed."_s);
    else if (whole == WholePage::NotFound)
        m_window.notice(u"The page was written anew as a whole: the place of the changes was not found in time."_s);
}

/// A caret that wasn't moved in the designer leaves that of the code view, and what it has selected, as they are.
void WorkspaceViews::takeCaret()
{
    if (!m_caret)
        return;
    EditingControl &editor = m_context.editor;
    const LineColumn place = lineColumnOf(editor.text(), *std::exchange(m_caret, {}));
    editor.select({place.line, place.column, place.line, place.column});
}

/// At the text's beginning nothing is to be shown.
void WorkspaceViews::showCaretInDesigner()
{
    const EditingControl &editor = m_context.editor;
    const CodeMaxRange range = editor.selection(false);
    if (range.EndLineNo == 0 && range.EndColNo == 0)
        return;
    const qsizetype position = indexOf(editor.text(), {range.EndLineNo, range.EndColNo});
    m_context.designer.showPlace(position, DesignerPlace::Caret);
}

/// Only what the designer has changed is replaced, if the code view still has the text that it was given.
void WorkspaceViews::takeText(const QString &text, const TextChanges &changes)
{
    EditingControl &editor = m_context.editor;
    const QString before = editor.text();
    if (areInOrder(changes, before.size()) && withChanges(before, changes) == text)
        editor.changeText(changes);
    else
        editor.setText(text);
}

void WorkspaceViews::show(WorkspaceView view)
{
    m_current = view;
    m_window.setVisualMenusEnabled(view == WorkspaceView::Visual);
    if (view != WorkspaceView::Preview)
        m_window.setSourceMenusEnabled(view == WorkspaceView::Code);
    m_window.showControls(view);
}

void WorkspaceViews::selectCode()
{
    m_browser.navigate(emptyPage);
    if (!carryBack(WorkspaceView::Code))
        return;
    show(WorkspaceView::Code);
    takeCaret();
}

void WorkspaceViews::selectPreview()
{
    if (!carryBack(WorkspaceView::Preview))
        return;
    show(WorkspaceView::Preview);
    takeCaret();
    switch (previewKind(m_context.document.languageRow())) {
    case PreviewKind::None:
        m_browser.navigate(shippedPage(u"filenoprev.htm"_s));
        break;
    case PreviewKind::Page:
        previewFile(FileKind::Page);
        break;
    case PreviewKind::File:
        previewFile(FileKind::ByName);
        break;
    case PreviewKind::StyleSheet:
        previewStyleSheet();
        break;
    case PreviewKind::Unchanged:
        break;
    }
}

void WorkspaceViews::previewStyleSheet()
{
    saveAndNavigate(shippedPage(u"style.css"_s), shippedPage(u"CSSpreview.html"_s));
}

void WorkspaceViews::previewFile(FileKind kind)
{
    const QString name = m_context.document.commonDialogFile();
    if (isServerPage(name)) {
        previewThroughServer(fileTitleOf(name));
        return;
    }
    const QString copy = temporaryFile(name);
    m_window.setPreviewTarget(copy);
    // A save follows links, and everybody knows the copy's name: one that is planted here mustn't lead to another file.
    if (QFileInfo(copy).isSymLink()) [[maybe_unused]]
        const Result<void> removed = m_context.files.remove(copy);
    saveAndNavigate(copy, copy, kind);
}

/// Full path of the copy of a document that is shown.
QString WorkspaceViews::temporaryFile(const QString &name) const
{
    if (!name.isEmpty())
        return previewCopyName(name);
    const QString project = m_context.document.projectPath();
    if (hasProject(m_context.document) && QFileInfo(project).isDir())
        return project + u"zephiratempfile.htm"_s;
    return m_window.scratchFolder() + u"/temp.html"_s;
}

/// A page with server code is previewed as the server delivers it, so a copy of it has to be in the server's folder.
/// The copy is left there, because nothing tells us who still needs it.
void WorkspaceViews::previewThroughServer(const QString &name)
{
    const QString serverRoot = m_context.configuration.value(Setting::ServerRoot);
    const QString server = m_context.configuration.value(Setting::ServerAddress);
    const bool isTaken = m_context.files.FileExists(serverRoot + name);
    const Question question = isTaken
        ? serverQuestion(serverCopy,
                         u" because a file with a name identical to yours already exists in your "
                         "root directory"_s)
        : serverQuestion(name);
    if (m_context.prompts.ask(question) != Answer::Ok)
        return;
    const QString &copy = isTaken ? serverCopy : name;
    const QString address = serverAddress(server, copy);
    if (!isTaken)
        m_window.setPreviewTarget(address);
    saveAndNavigate(serverRoot + copy, address);
}

/// If the copy can't be written, the preview goes on and shows whatever file is there.
void WorkspaceViews::saveAndNavigate(const QString &file, const QString &address, FileKind kind)
{
    if (const Result<void> saved = m_context.editor.saveFile(file, false); !saved)
        m_window.notice(saved.error().sentence);
    m_browser.setHome(address, kind);
    m_browser.navigate(address);
}

QString WorkspaceViews::shippedPage(const QString &name) const
{
    return m_context.appPath + u"/deps/"_s + name;
}

void WorkspaceViews::selectVisual()
{
    m_browser.navigate(emptyPage);
    if (m_window.docModified()) {
        const Answer answer = m_context.prompts.ask(
            {u"You must save your document in order to use the visual editor, please click OK to continue, or cancel to go "
             "back to code view"_s,
             u"Save Work"_s, Question::Icon::Question, Question::Buttons::OkCancel});
        if (answer != Answer::Ok) {
            m_window.selectTab(WorkspaceView::Code);
            return;
        }
        m_window.doSave();
    }
    show(WorkspaceView::Visual);
    Designer &designer = m_context.designer;
    const QString name = m_context.document.commonDialogFile();
    const bool isLoaded = !name.isEmpty() && endingQuietly([&] {
        designer.loadDocument(name);
        m_designerBase = m_context.document.projectPath();
    });
    if (!isLoaded)
        designer.setBaseFile(name);
    // Documents without a file, unreadable ones, and those whose save was refused or failed are loaded from the
    // editor's text.
    if (!isLoaded || m_window.docModified())
        designer.setDocumentHtml(m_context.editor.text());
    showCaretInDesigner();
}

} // namespace zephira

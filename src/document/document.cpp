// SPDX-License-Identifier: GPL-3.0-or-later
#include "document/document.h"

#include "core/clipboard.h"
#include "core/designer.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/languages.h"
#include "core/paths.h"
#include "core/relativepath.h"
#include "files/templatename.h"

using namespace Qt::StringLiterals;

namespace zephira {

Document::Document(const AppContext &context, CommonDialog &dialog, DocumentWindow &window)
    : m_context(context), m_dialog(dialog), m_window(window)
{}

void Document::setModified(bool modified)
{
    if (modified == m_modified)
        return;
    m_modified = modified;
    m_window.showModified(modified);
}

void Document::textChanged()
{
    setModified(true);
    m_window.setCountPanel(m_context.editor.textLength());
}

Answer Document::askToSave(PromptIcon icon)
{
    return m_context.prompts.ask(
        {u"Document: "_s + m_title + u"\n\nThis document has been modified.\nDo you wish to save?"_s,
         u"Document Modified."_s, icon == PromptIcon::Shown ? Question::Icon::Question : Question::Icon::None,
         Question::Buttons::YesNoCancel});
}

bool Document::mayGoOn(PromptIcon icon)
{
    if (!m_modified)
        return true;
    const Answer answer = askToSave(icon);
    // The command continues even if the save fails, and the text is replaced by another one.
    if (answer == Answer::Yes && !doSave())
        m_window.keepUnsavedText();
    return answer != Answer::Cancel;
}

void Document::flushDesigner()
{
    m_context.designer.finishLeaving();
    // Leaving visual mode carries the designer's text back.
    if (holdsDesignersWork())
        m_window.selectCodeTab();
}

bool Document::holdsDesignersWork() const
{
    return m_context.designer.isShowing() && m_context.designer.isDirty();
}

void Document::setPreviewTarget(const QString &target)
{
    if (target != m_previewTarget)
        discardPreview();
    m_previewTarget = target;
}

void Document::discardPreview()
{
    if (m_previewTarget.isEmpty() || isServerPage(m_previewTarget))
        return;
    [[maybe_unused]] const Result<void> removed = m_context.files.remove(m_previewTarget);
}

void Document::doNew()
{
    m_context.designer.finishLeaving();
    if (!mayGoOn(PromptIcon::Hidden))
        return;
    m_context.editor.setText({});
    m_context.editor.setLanguage({});
    becomeNew();
    setModified(false);
    m_context.document.setLanguageRow(language::Text);
    m_window.documentSettled();
    m_window.selectCodeTab();
}

/// Makes the document a new one, without a file.
void Document::becomeNew()
{
    ++m_number;
    m_hasFile = false;
    m_path.clear();
    m_title = u"New Document"_s;
    m_dialog.setFileName({});
    m_window.setCaption(u"Zephira - [New Document]"_s);
    m_window.setPathPanel(u"Untitled"_s);
}

void Document::newDocument()
{
    flushDesigner();
    discardPreview();
    doNew();
}

void Document::newFromTemplate()
{
    newDocument();
    m_window.showTemplateChooser();
}

void Document::SetSyntax()
{
    chooseLanguage(m_dialog.fileName());
}

void Document::chooseLanguage(const QString &fileName)
{
    const std::optional<LanguageChoice> choice = languageOfFile(fileName);
    if (!choice)
        return;
    m_context.document.setLanguageRow(choice->row);
    if (!choice->editorLanguage.isEmpty())
        m_context.editor.setLanguage(choice->editorLanguage);
}

/// Makes `path`, under which the text is on disk now, the document's file.
void Document::adopt(const QString &path)
{
    setModified(false);
    m_hasFile = true;
    m_path = path;
    m_title = path;
    // A preview copy that has become the document must not be deleted.
    if (path == m_previewTarget)
        m_previewTarget.clear();
    m_window.setCaption(u"Zephira - ["_s + path + u']');
    m_window.setPathPanel(path);
    m_window.documentSettled();
    m_window.fileUsed(path);
}

/// Reads the file into the editing control. A failure only shows a notice, or a message box if the file is too large,
/// because the caller sets the document's fields in any case.
void Document::readInto(const QString &path)
{
    const Result<void> opened = m_context.editor.openFile(path);
    if (opened)
        return;
    if (opened.error().code == Error::Code::TooLarge)
        tellError(m_context.prompts, opened.error());
    else
        m_window.notice(opened.error().sentence);
}

void Document::open()
{
    flushDesigner();
    discardPreview();
    if (!mayGoOn(PromptIcon::Shown))
        return;
    m_dialog.setTitle(u"Open a document..."_s);
    m_dialog.setFilter(openFilter());
    const auto chosen = m_context.prompts.file(
        {m_dialog.title(), m_dialog.filter(), m_dialog.initialFolder(), false, m_dialog.fileName()});
    if (!chosen || chosen->isEmpty())
        return;
    const QString &name = *chosen;
    m_dialog.setFileName(name);
    m_context.document.setProjectPath(folderOf(name));
    SetSyntax();
    readInto(name);
    adopt(name);
    m_window.selectListedFile(name);
    m_window.setCountPanel(m_context.editor.textLength());
    m_context.editor.executeCmd(EditorCommand::GoToLine, 0);
    m_window.selectCodeTab();
}

bool Document::doSave()
{
    m_context.designer.finishLeaving();
    if (!m_hasFile)
        return DoSaveAs();
    const Result<void> saved = m_context.editor.saveFile(m_path, false);
    if (!saved) {
        tellError(m_context.prompts, saved.error());
        return false;
    }
    setModified(false);
    m_window.documentSettled();
    return true;
}

bool Document::DoSaveAs()
{
    m_context.designer.finishLeaving();
    m_dialog.setTitle(u"Save a document..."_s);
    m_dialog.setInitialFolder(m_context.document.projectPath());
    if (const LanguageRow *row = languageRow(m_context.document.languageRow()))
        m_dialog.setFilter(row->saveFilter.toString());

    QString name;
    for (;;) {
        const auto chosen = m_context.prompts.file(
            {m_dialog.title(), m_dialog.filter(), m_dialog.initialFolder(), true, m_dialog.fileName()});
        if (!chosen || chosen->isEmpty() || *chosen == u" "_s)
            return false;
        name = *chosen;
        if (!m_context.files.FileExists(name))
            break;
        const Answer answer =
            m_context.prompts.ask({u"File: "_s + name + u"\n\nThe file you have entered\nalready exists. Overwrite?"_s,
                                   u"Overwrite?"_s, Question::Icon::Question, Question::Buttons::YesNoCancel});
        if (answer == Answer::Cancel)
            return false;
        if (answer == Answer::Yes)
            break;
    }
    const Result<void> saved = m_context.editor.saveFile(name, true);
    if (!saved) {
        tellError(m_context.prompts, saved.error());
        return false;
    }
    m_dialog.setFileName(name);
    SetSyntax();
    adopt(name);
    m_context.document.setProjectPath(folderOf(name));
    m_window.selectListedFile(name);
    return true;
}

void Document::save()
{
    flushDesigner();
    doSave();
}

void Document::saveAs()
{
    flushDesigner();
    DoSaveAs();
}

void Document::OpenAFile()
{
    const QString name = m_window.listedFile();
    if (!name.isEmpty())
        openFileOrImage(withSeparator(m_window.listedFolder()) + name);
}

void Document::openFileOrImage(const QString &path)
{
    m_context.designer.finishLeaving();
    const auto failed = [this](const QString &description) {
        m_context.prompts.tell(u"An error has occured.\r\n"_s + description
                                   + u"\r\nThe routine will now reset itself..."_s,
                               {}, Question::Icon::Critical);
    };
    endingWith(failed, [&] {
        const FileType *type = fileTypeOf(fileTitleOf(path));
        if (type && type->isImage)
            openImage(path);
        else
            openText(path);
    });
}

void Document::openImage(const QString &path)
{
    if (!linksImages(m_context.document.languageText())) {
        orRaise(m_window.showPicture(path));
        return;
    }
    // With an emptied box, the link fails below.
    if (!hasProjectText(m_context.document)) {
        m_context.prompts.tell(u"Please enter a Project Path to insert image links"_s, {}, Question::Icon::Exclamation);
        return;
    }
    const QSize size = orRaise(m_window.pictureSize(path));
    const QString tag = u"<img src=\"%1\" width=\"%2\" height=\"%3\" alt=\"\" Border=\"0\">"_s.arg(
        MakeRelativePath(m_context.document.projectPath(), path), QString::number(size.width()),
        QString::number(size.height()));
    m_context.editor.setSelText(m_context.editor.selText() + tag);
}

void Document::openText(const QString &path)
{
    if (!mayGoOn(PromptIcon::Shown))
        return;
    orRaise(m_context.editor.openFile(path));
    m_dialog.setFileName(path);
    adopt(path);
    SetSyntax();
    m_context.document.setProjectPath(folderOf(path));
    m_window.selectListedFile(path);
    m_context.editor.executeCmd(EditorCommand::GoToLine, 0);
    m_window.setCountPanel(m_context.editor.textLength());
}

bool Document::openDropped(const QString &path)
{
    flushDesigner();
    if (!mayGoOn(PromptIcon::Shown))
        return false;
    const Result<void> opened = m_context.editor.openFile(path);
    if (!opened) {
        tellError(m_context.prompts, opened.error());
        return false;
    }
    // If the designer stayed in front, it would keep the previous page and later write it over the new text.
    if (m_context.designer.isShowing())
        m_window.selectCodeTab();
    m_dialog.setFileName(path);
    adopt(path);
    m_window.setCountPanel(m_context.editor.textLength());
    return true;
}

void Document::openAtStart(const QString &path)
{
    m_dialog.setFileName(path);
    adopt(path);
    m_window.selectListedFile(path);
    SetSyntax();
    readInto(path);
    setModified(false);
}

void Document::openRecovered(const QString &copy, const QString &name)
{
    flushDesigner();
    if (!mayGoOn(PromptIcon::Shown))
        return;
    if (const Result<void> opened = m_context.editor.openFile(copy); !opened) {
        tellError(m_context.prompts, opened.error());
        return;
    }
    becomeNew();
    setModified(true);
    chooseLanguage(name);
    m_window.setCountPanel(m_context.editor.textLength());
    m_window.selectCodeTab();
}

void Document::revert()
{
    if (m_dialog.fileName().isEmpty())
        return;
    const Answer answer = m_context.prompts.ask(
        {u"Are you sure you wish to discard changes and revert to last saved copy of this document?"_s,
         {},
         Question::Icon::Question,
         Question::Buttons::YesNo});
    if (answer != Answer::Yes)
        return;
    // Loading raises the change event, but the flag must not change.
    const bool modified = m_modified;
    if (const Result<void> opened = m_context.editor.openFile(m_dialog.fileName()); !opened)
        tellError(m_context.prompts, opened.error());
    else
        endingQuietly([&] { m_context.designer.loadDocument(m_dialog.fileName()); });
    setModified(modified);
}

void Document::saveAsTemplate()
{
    const QString answer =
        m_context.prompts
            .input({u"What do you wish to call this file? (Please Include Extension)"_s, u"Save as Template"_s})
            .value_or(QString());
    if (answer.isEmpty()) {
        m_context.prompts.tell(u"You did not enter a file name, the file will not be saved"_s);
        return;
    }
    if (const Result<void> checked = checkTemplateName(answer); !checked) {
        tellError(m_context.prompts, checked.error());
        return;
    }
    const Result<void> saved = m_context.editor.saveFile(m_context.appPath + u"/templates/custom/"_s + answer, false);
    if (!saved)
        tellError(m_context.prompts, saved.error());
}

void Document::print()
{
    m_context.editor.printContents(EditingControl::standardPrinter, EditingControl::standardPrintOptions);
}

void Document::clearClipboard()
{
    const Answer answer = m_context.prompts.ask({u"Are you sure you wish to clear the clipboard?"_s, u"Clipboard"_s,
                                                 Question::Icon::Question, Question::Buttons::YesNo});
    if (answer == Answer::Yes)
        m_context.clipboard.setText({});
}

bool Document::askToClose()
{
    m_context.designer.finishLeaving();
    m_saveFailedAtClose = false;
    if (!m_modified && !holdsDesignersWork())
        return true;
    switch (askToSave(PromptIcon::Shown)) {
    case Answer::Yes:
        flushDesigner();
        m_saveFailedAtClose = !doSave();
        return true;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/prompts.h"
#include "document/commondialog.h"
#include "document/documentwindow.h"

#include <QString>

namespace zephira {

/// The window's one document: its four fields, the commands that create, open and save it, and the prompts that protect
/// changes. The text itself lives in the editing control.
class Document
{
public:
    Document(const AppContext &context, CommonDialog &dialog, DocumentWindow &window);

    bool docModified() const { return m_modified; }
    bool docHasFile() const { return m_hasFile; }
    /// "New Document" for a new one, else the full path; empty until a document exists.
    QString docTitle() const { return m_title; }
    /// The full path, empty for a new document.
    QString docPath() const { return m_path; }
    /// The last temporary preview file, or the address of a preview.
    QString previewTarget() const { return m_previewTarget; }

    void setModified(bool modified);
    /// A copy that was made for another preview goes, since nobody would know of it any more.
    void setPreviewTarget(const QString &target);

    /// The editing control raised its change event.
    void textChanged();

    void doNew();
    /// Returns whether the document is on disk now; false if the user cancelled or the save failed.
    bool doSave();
    bool DoSaveAs();
    /// Opens the file that is selected in the file pane: as the document, as a link to an image, or in the quick view.
    void OpenAFile();
    /// The same for any file, such as one that was dropped on the window.
    void openFileOrImage(const QString &path);
    /// Makes any file the document, whatever its name says, and leaves visual mode; the language stays what it is. Returns
    /// false if the user chose to stay, or if the file can't be read, which is told.
    bool openDropped(const QString &path);
    /// Chooses the language by the common dialog's file name.
    void SetSyntax();

    void newDocument();
    void newFromTemplate();
    void open();
    void save();
    void saveAs();
    void saveAsTemplate();
    void print();
    void clearClipboard();
    /// Goes back to the file on disk, in the code view and the designer; asks first.
    void revert();
    /// Opens the file of the command line. Errors are ignored.
    void openAtStart(const QString &path);

    /// Opens a recovery copy as a changed text without a file. `name` is that of the file it was made of, which chooses
    /// the language. Asks about changes first; a copy that can't be read is told.
    void openRecovered(const QString &copy, const QString &name);

    /// Before the window closes: asks about changes, also about those that only the designer holds. Returns false if the
    /// user refused.
    bool askToClose();
    /// Whether the user wanted the text saved at the last askToClose() and it isn't.
    bool saveFailedAtClose() const { return m_saveFailedAtClose; }

    /// Whether something was changed in the designer that hasn't come back to the text yet.
    bool holdsDesignersWork() const;
    /// Carries the designer's text back into the code view, if it is showing and dirty.
    void flushDesigner();
    /// Deletes the temporary preview file; an address that ends in ".asp" is spared.
    void discardPreview();

private:
    enum class PromptIcon { Shown, Hidden };

    Answer askToSave(PromptIcon icon);
    /// The save prompt where there are changes; false if the user chose to stay.
    bool mayGoOn(PromptIcon icon);
    void becomeNew();
    void chooseLanguage(const QString &fileName);
    void adopt(const QString &path);
    void readInto(const QString &path);
    void openImage(const QString &path);
    void openText(const QString &path);

    const AppContext m_context;
    CommonDialog &m_dialog;
    DocumentWindow &m_window;
    bool m_modified = false;
    bool m_hasFile = false;
    bool m_saveFailedAtClose = false;
    QString m_title;
    QString m_path;
    QString m_previewTarget;
};

} // namespace zephira

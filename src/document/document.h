// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/prompts.h"
#include "document/commondialog.h"
#include "document/documentwindow.h"

#include <QString>

namespace zephira {

/// The window's document: its fields, the commands that create, open and save it, and the prompts that protect changes.
/// The text itself is in the editing control.
class Document
{
public:
    Document(const AppContext &context, CommonDialog &dialog, DocumentWindow &window);

    bool docModified() const { return m_modified; }
    bool docHasFile() const { return m_hasFile; }
    /// "New Document" for a new one, otherwise the full path; empty until a document exists.
    QString docTitle() const { return m_title; }
    /// The full path, empty for a new document.
    QString docPath() const { return m_path; }
    /// Tells a document without a file from those before.
    int number() const { return m_number; }
    /// The last temporary preview file, or the address of a preview.
    QString previewTarget() const { return m_previewTarget; }

    void setModified(bool modified);
    /// Deletes the file of the previous preview, because nothing would refer to it any more.
    void setPreviewTarget(const QString &target);

    /// The editing control raised its change event.
    void textChanged();

    void doNew();
    /// Returns whether the document is on disk now; false if the user cancelled or the save failed.
    bool doSave();
    bool DoSaveAs();
    /// Opens the file selected in the file pane: as the document, as a link to an image, or in the quick view.
    void OpenAFile();
    /// The same for any file, such as one dropped on the window.
    void openFileOrImage(const QString &path);
    /// Opens a file as the document, whatever its extension, and leaves visual mode; the language is not changed.
    /// Returns false if the user cancelled, or if the file can't be read, which is reported.
    bool openDropped(const QString &path);
    /// Sets the language by the common dialog's file name.
    void SetSyntax();

    void newDocument();
    void newFromTemplate();
    void open();
    void save();
    void saveAs();
    void saveAsTemplate();
    void print();
    void clearClipboard();
    /// Reloads the file from disk into the code view and the designer, after asking.
    void revert();
    /// Opens the file of the command line. If it can't be read, the document is empty but has its name; a notice says so,
    /// or a message box if the file is too large.
    void openAtStart(const QString &path);

    /// Opens a recovery copy as a modified document without a file. `name` is the name of the original file and
    /// determines the language. Asks about unsaved changes first; reports a copy that can't be read.
    void openRecovered(const QString &copy, const QString &name);

    /// Called before the window closes: asks about unsaved changes, including those still in the designer. Returns
    /// false if the user cancelled.
    bool askToClose();
    /// Whether the user chose to save at the last askToClose() and the save failed.
    bool saveFailedAtClose() const { return m_saveFailedAtClose; }

    /// Whether the designer has changes that haven't been carried back to the text yet.
    bool holdsDesignersWork() const;
    /// Carries the designer's text back into the code view, if it is showing and dirty.
    void flushDesigner();
    /// Deletes the temporary preview file, but not one that ends in ".asp".
    void discardPreview();

private:
    enum class PromptIcon { Shown, Hidden };

    Answer askToSave(PromptIcon icon);
    /// Shows the save prompt if there are changes; false if the user cancelled.
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
    int m_number = 0;
    QString m_title;
    QString m_path;
    QString m_previewTarget;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/documenthost.h"

#include <QObject>

class QComboBox;

namespace zephira {

class CommonDialog;
class Document;
class FilePane;

/// The controls that show the document's language and project folder.
class DocumentControls final : public QObject, public DocumentHost
{
    Q_OBJECT

public:
    /// Creates the language list `cboLang`, which the caller adds to a layout.
    DocumentControls(const CommonDialog &dialog, FilePane &files, QObject *owner);

    QComboBox *languages() const { return m_languages; }
    /// Sets the document, which depends on these controls and so is created later.
    void attach(const Document &document) { m_document = &document; }

    // DocumentHost
    int languageRow() const override;
    QString languageText() const override;
    void setLanguageRow(int row) override;
    QString projectPath() const override;
    void setProjectPath(const QString &path) override;
    QString commonDialogFile() const override;
    bool isModified() const override;
    void openFile(const QString &path) override { Q_EMIT fileWanted(path); }

Q_SIGNALS:
    /// A row was set or chosen, even if it was already selected.
    void languageSet(int row);
    /// A form wants a file to become the document.
    void fileWanted(const QString &path);

private:
    const CommonDialog &m_dialog;
    FilePane &m_files;
    QComboBox *m_languages;
    const Document *m_document = nullptr;
};

} // namespace zephira

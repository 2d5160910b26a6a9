// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/documenthost.h"

#include <QObject>

class QComboBox;

namespace zephira {

class CommonDialog;
class FilePane;

/// The controls that show the document's language and project folder.
class DocumentControls final : public QObject, public DocumentHost
{
    Q_OBJECT

public:
    /// Creates the language list `cboLang`, which the caller adds to a layout.
    DocumentControls(const CommonDialog &dialog, FilePane &files, QObject *owner);

    QComboBox *languages() const { return m_languages; }

    // DocumentHost
    int languageRow() const override;
    QString languageText() const override;
    void setLanguageRow(int row) override;
    QString projectPath() const override;
    void setProjectPath(const QString &path) override;
    QString commonDialogFile() const override;

Q_SIGNALS:
    /// A row was set or chosen, even if it was already selected.
    void languageSet(int row);

private:
    const CommonDialog &m_dialog;
    FilePane &m_files;
    QComboBox *m_languages;
};

} // namespace zephira

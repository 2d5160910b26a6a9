// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/documentcontrols.h"

#include "core/languages.h"
#include "document/commondialog.h"
#include "document/document.h"
#include "panes/filepane.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace zephira {

DocumentControls::DocumentControls(const CommonDialog &dialog, FilePane &files, QObject *owner)
    : QObject(owner), m_dialog(dialog), m_files(files), m_languages(new QComboBox)
{
    m_languages->setObjectName(u"cboLang"_s);
    m_languages->setToolTip(u"Language of the document"_s);
    m_languages->setAccessibleName(u"Language of the document"_s);
    m_languages->setFocusPolicy(Qt::TabFocus);
    for (const LanguageRow &row : languageRows())
        m_languages->addItem(row.text.toString());
    connect(m_languages, &QComboBox::currentIndexChanged, this, &DocumentControls::languageSet);
    // Choosing the row that is already selected runs the handler too.
    connect(m_languages, &QComboBox::activated, this, &DocumentControls::languageSet);
}

int DocumentControls::languageRow() const
{
    return m_languages->currentIndex();
}

QString DocumentControls::languageText() const
{
    return m_languages->currentText();
}

void DocumentControls::setLanguageRow(int row)
{
    if (row == m_languages->currentIndex())
        Q_EMIT languageSet(row); // The handler runs even if the row doesn't change.
    else
        m_languages->setCurrentIndex(row);
}

QString DocumentControls::projectPath() const
{
    return m_files.projectPath();
}

void DocumentControls::setProjectPath(const QString &path)
{
    m_files.setProjectPath(path);
}

QString DocumentControls::commonDialogFile() const
{
    return m_dialog.fileName();
}

bool DocumentControls::isModified() const
{
    return m_document && m_document->docModified();
}

} // namespace zephira

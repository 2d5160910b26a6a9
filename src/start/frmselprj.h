// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/result.h"

#include <QDialog>

#include <memory>

class QListWidgetItem;
class QPersistentModelIndex;

namespace zephira {

class RecoveryCopies;
struct TemplateButton;
class WizardList;

namespace Ui {
class frmselprj;
}

/// Chooses what the new document starts with. Every choice sets the text of the editing control without asking, sets
/// the language, and closes the form. Whatever would be lost, unsaved text or an overwritten template, is kept as a
/// recovery copy first.
class frmselprj : public QDialog
{
    Q_OBJECT

public:
    frmselprj(const AppContext &context, RecoveryCopies &recovery, QWidget *owner);
    ~frmselprj() override;

private:
    void listCustomTemplates();
    void useTemplate(const TemplateButton &button);
    void useCustomTemplate(const QListWidgetItem *item);
    void renameCustom(const QPersistentModelIndex &row, const QString &newName);
    void tell(const Error &error);

    const AppContext &m_context;
    RecoveryCopies &m_recovery;
    const QString m_templateFolder;
    std::unique_ptr<Ui::frmselprj> m_ui;
    std::unique_ptr<WizardList> m_wizards;
};

} // namespace zephira

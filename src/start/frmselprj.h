// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"

#include <QDialog>

#include <memory>

class QListWidgetItem;

namespace zephira {

struct TemplateButton;

namespace Ui {
class frmselprj;
}

/// Chooses what the new document starts with. Every choice sets the text of the editing control without asking, sets
/// the language, and closes the form.
class frmselprj : public QDialog
{
    Q_OBJECT

public:
    frmselprj(const AppContext &context, QWidget *owner);
    ~frmselprj() override;

private:
    void addTemplateButtons();
    void addButton(const TemplateButton &button);
    void listCustomTemplates();
    void useTemplate(const TemplateButton &button);
    void useCustomTemplate(const QListWidgetItem *item);
    void renameCustom(const QString &oldName, const QString &newName);

    const AppContext &m_context;
    const QString m_templateFolder;
    const QString m_customFolder;
    std::unique_ptr<Ui::frmselprj> m_ui;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/frmselprj.h"

#include "core/configuration.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/prompts.h"
#include "start/customtemplates.h"
#include "start/documenttext.h"
#include "start/labeleditdelegate.h"
#include "start/templates.h"
#include "start/wizardlist.h"
#include "ui_frmselprj.h"
#include "widgets/themeicon.h"

#include <QAction>
#include <QPersistentModelIndex>

using namespace Qt::StringLiterals;

namespace zephira {

frmselprj::frmselprj(const AppContext &context, RecoveryCopies &recovery, QWidget *owner)
    : QDialog(owner)
    , m_context(context)
    , m_recovery(recovery)
    , m_templateFolder(context.appPath + u"/templates/"_s)
    , m_ui(std::make_unique<Ui::frmselprj>())
{
    m_ui->setupUi(this);
    for (const TemplateButtons *page :
         {m_ui->htmlPage, m_ui->framesPage, m_ui->cssPage, m_ui->webPage, m_ui->win32Page})
        connect(page, &TemplateButtons::chosen, this, &frmselprj::useTemplate);
    listCustomTemplates();
    m_wizards = std::make_unique<WizardList>(context, recovery, *m_ui->filePlugin, *m_ui->ListView1, *this);
    // No message tells of a bad module, but the page does.
    if (const QString reason = m_wizards->whyIncomplete(); !reason.isEmpty())
        m_ui->lblNoWizards->setText(reason);
    else
        m_ui->lblNoWizards->setVisible(m_ui->ListView1->count() == 0);

    m_ui->Check1->setChecked(isSwitchedOn(context.configuration, Setting::StartDialog));
    connect(m_ui->Check1, &QCheckBox::clicked, this,
            [this](bool ticked) { writeSwitch(m_context.configuration, Setting::StartDialog, ticked); });
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &frmselprj::reject);
}

frmselprj::~frmselprj()
{
    // A label that is being edited ends its editing when the list is destroyed, after our own members are gone.
    m_ui->ListView2->itemDelegate()->disconnect(this);
}

void frmselprj::listCustomTemplates()
{
    m_ui->File1->setPath(m_templateFolder + u"custom"_s);
    QListWidget *list = m_ui->ListView2;
    const QIcon picture = themeIcon(u"text-x-generic"_s, QStyle::SP_FileIcon);
    const QStringList names = m_ui->File1->entries();
    for (const QString &name : names) {
        auto *item = new QListWidgetItem(picture, name);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        list->addItem(item);
    }
    m_ui->lblNoTemplates->setVisible(names.isEmpty());

    auto *delegate = new LabelEditDelegate(list);
    list->setItemDelegate(delegate);
    // Only when the label's editor is gone: a message of ours would take the focus from it and end the editing again.
    connect(delegate, &LabelEditDelegate::labelEdited, this,
            [this](const QPersistentModelIndex &row, const QString &newName) {
                QMetaObject::invokeMethod(
                    this, [this, row, newName] { renameCustom(row, newName); }, Qt::QueuedConnection);
            });
    connect(list, &QListWidget::itemDoubleClicked, this, &frmselprj::useCustomTemplate);

    // The keyboard equivalent of a double click.
    auto *use = new QAction(list);
    use->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    use->setShortcutContext(Qt::WidgetShortcut);
    list->addAction(use);
    connect(use, &QAction::triggered, this, [this, list] { useCustomTemplate(list->currentItem()); });
}

void frmselprj::useTemplate(const TemplateButton &button)
{
    if (!button.file.isEmpty()) {
        Result<void> done = m_ui->temp->loadFile(m_context.files, m_templateFolder + button.file.toString());
        if (done)
            done = replaceDocumentText(m_context, m_recovery, m_ui->temp->text());
        if (!done) {
            tell(done.error());
            return;
        }
    }
    m_context.document.setLanguageRow(button.language);
    accept();
}

void frmselprj::useCustomTemplate(const QListWidgetItem *item)
{
    if (!item)
        return;
    Result<void> done = m_ui->temp->loadFile(m_context.files, m_ui->File1->path() + u'/' + item->text());
    if (done && !m_ui->temp->text().isEmpty())
        done = replaceDocumentText(m_context, m_recovery, m_ui->temp->text());
    if (!done) {
        tell(done.error());
        return;
    }
    if (const auto language = languageOfTemplate(item->text())) {
        m_context.document.setLanguageRow(language->row);
        if (!language->editorLanguage.isEmpty())
            m_context.editor.setLanguage(language->editorLanguage);
    }
    accept();
}

void frmselprj::renameCustom(const QPersistentModelIndex &row, const QString &newName)
{
    const Result<void> renamed =
        renameCustomTemplate(m_context.files, m_recovery, m_ui->File1->path(), row.data().toString(), newName);
    if (renamed)
        m_ui->ListView2->model()->setData(row, newName);
    else
        tell(renamed.error());
}

void frmselprj::tell(const Error &error)
{
    tellError(m_context.prompts, error, windowTitle(), Question::Icon::Critical);
}

} // namespace zephira

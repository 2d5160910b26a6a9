// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/frmselprj.h"

#include "core/configuration.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/prompts.h"
#include "start/customtemplates.h"
#include "start/framepicture.h"
#include "start/labeleditdelegate.h"
#include "start/templates.h"
#include "ui_frmselprj.h"
#include "widgets/themeicon.h"

#include <QAction>
#include <QGridLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int textColumns = 3;
constexpr int pictureColumns = 4;
constexpr QSize pictureSize(104, 78);

} // namespace

frmselprj::frmselprj(const AppContext &context, QWidget *owner)
    : QDialog(owner)
    , m_context(context)
    , m_templateFolder(context.appPath + u"/templates/"_s)
    , m_customFolder(m_templateFolder + u"custom"_s)
    , m_ui(std::make_unique<Ui::frmselprj>())
{
    m_ui->setupUi(this);
    addTemplateButtons();
    listCustomTemplates();

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

void frmselprj::addTemplateButtons()
{
    for (const TemplateButton &button : templateButtons())
        addButton(button);
    // The buttons stay together at the top of a page that is larger than needed.
    for (int page = 0; page <= static_cast<int>(TemplatePage::Win32); ++page) {
        auto *grid = static_cast<QGridLayout *>(m_ui->SSTab1->widget(page)->layout());
        grid->setRowStretch(grid->rowCount(), 1);
    }
}

void frmselprj::addButton(const TemplateButton &button)
{
    QWidget *page = m_ui->SSTab1->widget(static_cast<int>(button.page));
    auto *grid = static_cast<QGridLayout *>(page->layout());
    const bool pictured = button.page == TemplatePage::Frames;
    const int columns = pictured ? pictureColumns : textColumns;
    const QString file = button.file.toString();

    auto *control = new QPushButton(button.caption.toString(), page);
    control->setObjectName(button.name);
    control->setAutoDefault(false);
    control->setAccessibleName(control->text().trimmed());
    control->setToolTip(file.isEmpty() ? tr("Keeps the text and only sets the language") : file);
    if (pictured) {
        const FramePicture picture = framePicture(file, palette(), pictureSize);
        control->setIcon(picture.icon);
        control->setIconSize(pictureSize);
        control->setAccessibleName(picture.description);
        control->setToolTip(picture.description);
    } else {
        control->setMinimumHeight(2 * control->sizeHint().height());
    }
    const int index = grid->count();
    grid->addWidget(control, index / columns, index % columns);
    connect(control, &QPushButton::clicked, this, [this, &button] { useTemplate(button); });
}

void frmselprj::listCustomTemplates()
{
    QListWidget *list = m_ui->ListView2;
    const QIcon picture = themeIcon(u"text-x-generic"_s, QStyle::SP_FileIcon);
    for (const QString &name : customTemplateNames(m_customFolder)) {
        auto *item = new QListWidgetItem(picture, name, list);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
    }
    auto *delegate = new LabelEditDelegate(list);
    list->setItemDelegate(delegate);
    connect(delegate, &LabelEditDelegate::labelEdited, this, &frmselprj::renameCustom);
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
    const QString file = button.file.toString();
    if (!file.isEmpty()) {
        const Result<QString> text = readTemplate(m_context.files, m_templateFolder + file);
        if (!text) {
            tellError(m_context.prompts, text.error(), windowTitle(), Question::Icon::Critical);
            return;
        }
        m_context.editor.setText(text.value());
    }
    m_context.document.setLanguageRow(button.language);
    accept();
}

void frmselprj::useCustomTemplate(const QListWidgetItem *item)
{
    if (!item)
        return;
    const Result<QString> text = readTemplate(m_context.files, m_customFolder + u'/' + item->text());
    if (!text) {
        tellError(m_context.prompts, text.error(), windowTitle(), Question::Icon::Critical);
        return;
    }
    if (!text.value().isEmpty())
        m_context.editor.setText(text.value());
    if (const auto language = languageOfTemplate(item->text())) {
        m_context.document.setLanguageRow(language->row);
        if (!language->editorLanguage.isEmpty())
            m_context.editor.setLanguage(language->editorLanguage);
    }
    accept();
}

void frmselprj::renameCustom(const QString &oldName, const QString &newName)
{
    const Result<void> renamed = renameCustomTemplate(m_context.files, m_customFolder, oldName, newName);
    if (!renamed)
        tellError(m_context.prompts, renamed.error(), windowTitle(), Question::Icon::Critical);
}

} // namespace zephira

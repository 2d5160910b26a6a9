// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmfa.h"

#include "core/errorstyles.h"
#include "core/prompts.h"
#include "ui_frmfa.h"

#include <QApplication>

#include <limits>

using namespace Qt::StringLiterals;

namespace zephira {

frmfa::frmfa(const AppContext &context, FileTypeStore &store, const QString &executable, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmfa>())
    , m_context(context)
    , m_store(store)
    , m_program{context.appPath, executable}
{
    m_ui->setupUi(this);
    for (QLineEdit *field : {m_ui->Text1, m_ui->Text2, m_ui->Text3, m_ui->Text4})
        field->setMaxLength(std::numeric_limits<int>::max());
    m_ui->Text4->setText(m_program.icon());
    load();

    const auto all = boxes();
    for (std::size_t i = 0; i < all.size(); ++i) {
        connect(all[i], &QCheckBox::clicked, this, [this, i](bool ticked) { m_toRestore[i] = !ticked && m_bound[i]; });
    }
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmfa::apply);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmfa::reject);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmfa::help);
    connect(m_ui->Command4, &QPushButton::clicked, this, &frmfa::makeCustom);
    connect(qApp, &QApplication::focusChanged, this, &frmfa::followFocus);
}

frmfa::~frmfa()
{
    // The base class's destructor takes the focus away. Its signal must not reach this part, which is gone by then.
    disconnect(qApp, nullptr, this, nullptr);
}

std::array<QCheckBox *, fileCategoryCount> frmfa::boxes() const
{
    return {m_ui->chk_0, m_ui->chk_1, m_ui->chk_2, m_ui->chk_3, m_ui->chk_4, m_ui->chk_5, m_ui->chk_6, m_ui->chk_7};
}

void frmfa::load()
{
    const Result<CategoryFlags> bound = boundCategories(m_program);
    if (!bound) {
        tellError(m_context.prompts, bound.error(), windowTitle());
        return;
    }
    m_bound = bound.value();
    const auto all = boxes();
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i]->setChecked(m_bound[i]);
}

void frmfa::apply()
{
    CategoryFlags ticked = {};
    const auto all = boxes();
    for (std::size_t i = 0; i < all.size(); ++i)
        ticked[i] = all[i]->isChecked();
    const Result<void> applied = applyCategories(ticked, m_bound, m_toRestore, m_store, m_program);
    if (applied)
        accept();
    else
        tellError(m_context.prompts, applied.error(), windowTitle());
}

void frmfa::help()
{
    m_context.prompts.tell(
        u"This will setup your File associations\n"
        "With it you can choose which files will be opened by this program. PLEASE NOTE: IT IS "
        "SUGGESTED THAT YOU CUSTOMIZE YOUR EXTENSIONS BELOW TO ENSURE THAT Zephira DOES NOT STOP YOUR "
        "WEB BROWSER FROM OPENING!!"_s,
        u"Help.."_s, Question::Icon::Question);
}

void frmfa::makeCustom()
{
    const CustomType type{.extension = m_ui->Text1->text(),
                          .description = m_ui->Text2->text(),
                          .action = m_ui->Text3->text(),
                          .icon = m_ui->Text4->text(),
                          .isDefault = m_ui->Check1->isChecked()};
    if (const Result<void> made = makeCustomType(type, m_store, m_program); !made) {
        m_context.prompts.tell(u"An error has occured"_s, {}, Question::Icon::Critical);
        tellError(m_context.prompts, made.error(), windowTitle());
        return;
    }
    m_context.prompts.tell(u"The extension '%1' will now be opened by Zephira"_s.arg(type.extension));
}

void frmfa::followFocus(const QWidget *, QWidget *now)
{
    if (!now || now->window() != this)
        return;
    QPushButton *const button = m_ui->Frame2->isAncestorOf(now) ? m_ui->Command4 : m_ui->Command1;
    button->setDefault(true);
}

} // namespace zephira

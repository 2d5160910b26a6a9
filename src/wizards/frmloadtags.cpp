// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/frmloadtags.h"

#include "core/errorstyles.h"
#include "ui_frmloadtags.h"
#include "widgets/itemchoice.h"
#include "wizards/frmmeta.h"
#include "wizards/longfields.h"
#include "wizards/savedtags.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What the hidden box holds until a file is picked. No file of the list has this name, because it has no extension.
constexpr QStringView nothingPicked = u"Text1";

} // namespace

frmloadtags::frmloadtags(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmloadtags>()), m_context(context)
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    m_ui->Text1->setText(nothingPicked.toString());
    m_ui->Text1->hide();
    connect(m_ui->File1, &SavedTagsList::picked, m_ui->Text1, &QLineEdit::setText);
    onItemChosen(*m_ui->File1, this, [this](const QModelIndex &) { load(); });
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmloadtags::load);
    m_ui->File1->setPath(savedTagsFolder(m_context.appPath));
}

frmloadtags::~frmloadtags() = default;

void frmloadtags::load()
{
    const QString fileName = m_ui->Text1->text();
    const auto loaded = loadTags(savedTagsFolder(m_context.appPath), fileName);
    // Without a choice there is no file, and so there are no values either. A chosen file that is gone is told, because
    // the user expects its values.
    const bool isNothing = !loaded && loaded.error().code == Error::Code::NotFound && fileName == nothingPicked;
    if (!loaded && !isNothing) {
        tellError(m_context.prompts, loaded.error(), windowTitle());
        return;
    }
    if (auto *wizard = qobject_cast<frmMeta *>(parentWidget()))
        wizard->setFacts(loaded.valueOr({}));
    accept();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/oebrowser.h"

#include "core/appcontext.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "panes/objectbrowserlayout.h"
#include "panes/sotloader.h"
#include "ui_oebrowser.h"
#include "widgets/itemchoice.h"

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What a button needs around its caption, in pixels.
constexpr QSize buttonFrame(6, 6);

} // namespace

oebrowser::oebrowser(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_context(context), m_ui(std::make_unique<Ui::oebrowser>())
{
    m_ui->setupUi(this);
    // The tree is empty until one of the buttons is pressed.
    m_ui->objectshow->setFocus();
    connect(m_ui->objectshow, &QPushButton::clicked, this, [this] { showTree(u"jsobjects.sot"_s); });
    connect(m_ui->eventshow, &QPushButton::clicked, this, [this] { showTree(u"jsevents.sot"_s); });
    onItemChosen(*m_ui->TreeView1, this,
                 [this](const QModelIndex &index) { m_context.editor.setSelText(index.data().toString()); });
}

oebrowser::~oebrowser() = default;

void oebrowser::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    QSize least;
    for (const QPushButton *button : {m_ui->objectshow, m_ui->eventshow})
        least = least.expandedTo(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + buttonFrame);
    const ObjectBrowserLayout layout = objectBrowserLayout(size(), least.width());
    m_ui->TreeView1->setGeometry(layout.tree);
    int top = m_ui->objectshow->y();
    for (QPushButton *button : {m_ui->objectshow, m_ui->eventshow}) {
        const int height = qMax(button->height(), least.height());
        button->setGeometry(layout.buttonLeft, top, layout.buttonWidth, height);
        top += height + m_ui->objectshow->y();
    }
}

void oebrowser::showTree(const QString &fileName)
{
    const Result<void> loaded =
        LoadSotTree(m_context.files, m_context.appPath + u"/deps/"_s + fileName, *m_ui->TreeView1);
    if (!loaded)
        tellError(m_context.prompts, loaded.error(), windowTitle());
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/frmqv.h"

#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "ui_frmqv.h"
#include "views/quickviewrules.h"
#include "widgets/picturefile.h"
#include "widgets/tipwithkeys.h"

#include <QAction>
#include <QFileInfo>
#include <QKeyEvent>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// 800 twips: the height of the bar above the picture.
constexpr int roomAbovePicture = 800 / 15;

} // namespace

frmqv::frmqv(const AppContext &context, const ViewerFactory &makeViewer, QWidget *owner)
    : QWidget(owner, Qt::Window), m_context(context), m_ui(std::make_unique<Ui::frmqv>())
{
    m_ui->setupUi(this);
    addButtons();
    m_viewer = makeViewer(this);
    m_viewer.widget->setObjectName(u"CodeMax1"_s);
    m_viewer.widget->setAccessibleName(tr("Text of the file"));
    m_ui->outerLayout->addWidget(m_viewer.widget, 1);
    m_ui->Picture1->hide();
    m_roomForText = size();
}

frmqv::~frmqv() = default;

void frmqv::addButtons()
{
    struct Button {
        QStringView key;
        QStringView caption;
        QStringView icon;
        void (frmqv::*action)();
        QStringView keys = {};
    };
    static constexpr Button buttons[] = {
        {u"copy", u"Copy", u"edit-copy", &frmqv::copySelection, u"Ctrl+C"},
        {u"help", u"Help", u"help-contents", &frmqv::explain},
        {u"cate", u"Copy All Text to clipboard", u"edit-select-all", &frmqv::copyAll},
    };
    for (const Button &button : buttons) {
        auto *action = new QAction(QIcon::fromTheme(button.icon.toString()), button.caption.toString(), this);
        action->setObjectName(button.key);
        action->setToolTip(tipWithKeys(button.caption, button.keys));
        connect(action, &QAction::triggered, this, button.action);
        m_ui->tBar->addAction(action);
        m_ui->tBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
    }
}

void frmqv::showFile(const QString &path)
{
    if (isQuickViewPicture(path))
        showPicture(path);
    else
        showText(path);
}

void frmqv::showPicture(const QString &path)
{
    const Result<QPixmap> picture = readPicture(m_context.files, path);
    if (!picture) {
        tellFailure(picture.error());
        return;
    }
    m_viewer.widget->hide();
    m_ui->Picture1->setPixmap(picture.value());
    m_ui->Picture1->setFixedSize(picture.value().size());
    m_ui->Picture1->setAccessibleDescription(QFileInfo(path).fileName());
    m_ui->Picture1->show();
    resize(picture.value().width(), picture.value().height() + roomAbovePicture);
    present();
}

void frmqv::showText(const QString &path)
{
    if (const Result<void> opened = m_viewer.control->openFile(path); !opened) {
        tellFailure(opened.error());
        return;
    }
    m_ui->Picture1->hide();
    m_ui->Picture1->clear();
    m_viewer.widget->show();
    resize(size().expandedTo(m_roomForText));
    present();
}

void frmqv::tellFailure(const Error &error)
{
    tellError(m_context.prompts, error, windowTitle(), Question::Icon::Critical);
    if (!m_hasContent)
        close();
}

void frmqv::present()
{
    m_hasContent = true;
    show();
    raise();
    activateWindow();
}

void frmqv::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmqv::copySelection()
{
    if (m_viewer.control->canCopy())
        m_viewer.control->copy();
    else
        m_context.prompts.tell(u"Please select something to copy"_s, {}, Question::Icon::Critical);
}

void frmqv::explain()
{
    m_context.prompts.tell(u"Press the copy button to copy the SELECTED text, OR Select the Zephira button to copy "
                           "everything displayed to the clipboard"_s,
                           {}, Question::Icon::None);
}

void frmqv::copyAll()
{
    m_viewer.control->executeCmd(EditorCommand::SelectAll);
    m_viewer.control->copy();
}

} // namespace zephira

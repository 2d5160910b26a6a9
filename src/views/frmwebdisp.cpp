// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/frmwebdisp.h"

#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "ui_frmwebdisp.h"
#include "views/fetchedtext.h"

#include <QGuiApplication>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace zephira {

frmwebdisp::frmwebdisp(const AppContext &context, const ViewerFactory &makeViewer, const PageFetcherLoader &loadFetcher,
                       QWidget *owner)
    : QDialog(owner), m_context(context), m_ui(std::make_unique<Ui::frmwebdisp>()), m_loadFetcher(loadFetcher)
{
    m_ui->setupUi(this);
    m_source = makeViewer(this);
    m_source.widget->setObjectName(u"RichTextBox1"_s);
    m_source.widget->setAccessibleName(u"Source of the page"_s);
    m_source.control->setEditorFont({.name = u"Courier New"_s});
    m_ui->sourceLayout->addWidget(m_source.widget);
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmwebdisp::grabSource);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmwebdisp::viewPage);
    connect(m_ui->mnucopy, &QAction::triggered, this, &frmwebdisp::copySource);
    connect(m_ui->filesaveas, &QAction::triggered, this, &frmwebdisp::saveAs);
}

frmwebdisp::~frmwebdisp() = default;

Result<QString> frmwebdisp::sourceOf(const QString &address) const
{
    const Result<PageFetcher *> fetcher = m_loadFetcher();
    if (!fetcher)
        return fetcher.error();
    const Result<FetchedPage> page = fetcher.value()->fetch(address);
    return page ? Result<QString>(fetchedText(page.value())) : page.error();
}

void frmwebdisp::grabSource()
{
    const QString address = m_ui->URL->text();
    setWindowTitle(u"Zephira Web Viewer - "_s + address);
    const Result<QString> source = [&] {
        // Disabling a button moves the focus to the next control.
        const bool hadFocus = m_ui->Command1->hasFocus();
        // Nothing is painted while the page is fetched, so the button has to be repainted before that to show the wait.
        m_ui->Command1->setEnabled(false);
        m_ui->Command1->repaint();
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([this, hadFocus] {
            QGuiApplication::restoreOverrideCursor();
            m_ui->Command1->setEnabled(true);
            if (hadFocus)
                m_ui->Command1->setFocus();
        });
        Result<QString> page = sourceOf(address);
        // Handle clicks made while the form was blocked now, so that they don't fetch the page again.
        QCoreApplication::processEvents();
        return page;
    }();
    if (source)
        m_source.control->setText(source.value());
    else
        m_context.prompts.ask({u"The document you requested could not be found."_s});
}

void frmwebdisp::viewPage()
{
    // An address that no program opens is ignored silently.
    if (!m_context.shell.open(m_ui->URL->text()))
        return;
}

void frmwebdisp::copySource()
{
    m_source.control->executeCmd(EditorCommand::SelectAll);
    m_source.control->copy();
    m_context.prompts.tell(u"The source code has been placed on the clipboard"_s);
}

void frmwebdisp::saveAs()
{
    const auto path =
        m_context.prompts.file({.filter = u"Text Files (*.txt)|*.txt|HTML Files (*.html)|*.html|"_s, .saving = true});
    if (!path || path->isEmpty())
        return;
    const Result<void> written = m_context.files.write(*path, m_source.control->text().toUtf8());
    if (!written)
        tellError(m_context.prompts, written.error());
}

} // namespace zephira

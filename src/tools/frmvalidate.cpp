// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmvalidate.h"

#include "core/designer.h"
#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/filestore.h"
#include "core/formopener.h"
#include "core/prompts.h"
#include "tools/tidymessagemodel.h"
#include "tools/tidyplaces.h"
#include "ui_frmvalidate.h"

#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr std::chrono::milliseconds lookInterval{20};

TidyMessageModel::Pictures picturesOf(const QStyle &style)
{
    return {
        QIcon::fromTheme(u"dialog-warning"_s, style.standardIcon(QStyle::SP_MessageBoxWarning)),
        QIcon::fromTheme(u"dialog-error"_s, style.standardIcon(QStyle::SP_MessageBoxCritical)),
    };
}

/// What the line under the list says after a clean-up.
QString summary(const std::vector<TidyMessage> &messages)
{
    if (messages.size() == TidyEngine::mostMessages)
        return u"Only the first %1 messages are listed."_s.arg(messages.size());
    const auto errors = std::ranges::count(messages, TidyMessage::Kind::Error, &TidyMessage::kind);
    return u"Warnings: %1, errors: %2"_s.arg(static_cast<qsizetype>(messages.size()) - errors).arg(errors);
}

} // namespace

frmvalidate::frmvalidate(const AppContext &context, const TidyEngineLoader &loadTidy, QWidget *owner)
    : QDialog(owner)
    , m_context(context)
    , m_loadTidy(loadTidy)
    , m_ui(std::make_unique<Ui::frmvalidate>())
    , m_messages(new TidyMessageModel(u"Errors and Warnings"_s, picturesOf(*style()), this))
{
    m_ui->setupUi(this);
    m_ui->ListView1->setModel(m_messages);
    m_ui->lblinput->setText(m_context.document.languageText().toUpper());
    m_ui->cbodc->addItems(tidyDocumentTypes());
    // A completer would turn "Auto" into "auto".
    m_ui->cbodc->setCompleter(nullptr);
    m_ui->cboCE->addItems(tidyCharEncodings());
    setWorking(false);
    connect(m_ui->Command1, &QPushButton::clicked, this, [this] { cleanUp({}); });
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmvalidate::showOutput);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmvalidate::sendChanges);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmvalidate::cancel);
    connect(m_ui->ListView1, &QTreeView::activated, this, &frmvalidate::selectPlace);
    // Otherwise the list would pass the keys on to the default button.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *shortcut = new QShortcut(key, m_ui->ListView1);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this] { selectPlace(m_ui->ListView1->currentIndex()); });
    }
    m_looking.setInterval(lookInterval);
    connect(&m_looking, &QTimer::timeout, this, &frmvalidate::look);
}

frmvalidate::~frmvalidate() = default;

TidyChoices frmvalidate::choices() const
{
    return {
        .ticked = m_ui->checks->ticked(),
        .documentType = m_ui->cbodc->currentText(),
        .charEncoding = m_ui->cboCE->currentText(),
        .isXml = m_ui->lblinput->text() == u"XML",
    };
}

/// Cleans the document's file; `then` follows unless that fails or is canceled.
void frmvalidate::cleanUp(Continuation then)
{
    m_then = std::move(then);
    const QString path = m_context.document.commonDialogFile();
    if (path.isEmpty()) {
        finish({});
        m_ui->lblStatus->setText(u"Save the document first."_s);
        if (m_then)
            std::exchange(m_then, {})();
        return;
    }
    m_ui->lblStatus->clear();
    if (const Result<void> started = startCleaning(path); !started) {
        tellError(m_context.prompts, started.error(), windowTitle());
        return;
    }
    setWorking(true);
    m_looking.start();
}

Result<void> frmvalidate::startCleaning(const QString &path)
{
    const Result<TidyEngine *> engine = m_loadTidy();
    if (!engine)
        return engine.error();
    const Result<QByteArray> file = m_context.files.read(path);
    if (!file)
        return file.error();
    return m_task.start(*engine.value(), file.value(), choices());
}

/// Shows how far the clean-up has come, or what it has found.
void frmvalidate::look()
{
    m_ui->prgTidy->setValue(m_task.permille());
    std::optional<Result<TidyOutcome>> outcome = m_task.take();
    if (!outcome)
        return;
    setWorking(false);
    if (!outcome->ok()) {
        tellError(m_context.prompts, outcome->error(), windowTitle());
        return;
    }
    finish(outcome->value());
    m_ui->lblStatus->setText(summary(outcome->value().messages));
    if (m_then)
        std::exchange(m_then, {})();
}

void frmvalidate::finish(const TidyOutcome &outcome)
{
    m_cleanedText = outcome.text;
    m_messages->append(outcome.messages);
}

void frmvalidate::cancel()
{
    m_task.cancel();
    m_then = {};
    setWorking(false);
    m_ui->lblStatus->setText(u"The check was canceled."_s);
}

void frmvalidate::done(int result)
{
    if (m_task.isRunning())
        cancel();
    QDialog::done(result);
}

/// While a clean-up is running, nothing but Cancel can be used.
void frmvalidate::setWorking(bool working)
{
    if (working) {
        m_focus = focusWidget();
        m_ui->prgTidy->setValue(0);
    } else {
        m_looking.stop();
    }
    m_ui->prgTidy->setVisible(working);
    m_ui->cmdCancel->setVisible(working);
    for (QWidget *control : {static_cast<QWidget *>(m_ui->options), static_cast<QWidget *>(m_ui->Command1),
                             static_cast<QWidget *>(m_ui->Command2), static_cast<QWidget *>(m_ui->Command3)})
        control->setEnabled(!working);
    if (working)
        m_ui->cmdCancel->setFocus();
    else if (m_focus)
        m_focus->setFocus();
}

void frmvalidate::showOutput()
{
    m_context.forms.openModal(u"output"_s, this);
}

void frmvalidate::sendChanges()
{
    cleanUp([this] {
        const QPointer<frmvalidate> self(this);
        const Answer answer =
            m_context.prompts.ask({u"Are you sure you want to send changes to the main Zephira window?"_s,
                                   {},
                                   Question::Icon::Question,
                                   Question::Buttons::YesNo});
        if (!self || answer != Answer::Yes)
            return;
        m_context.editor.setText(m_cleanedText);
        // The designer's page would replace the text when visual mode is left.
        if (m_context.designer.isShowing())
            m_context.designer.setDocumentHtml(m_cleanedText);
        accept();
    });
}

void frmvalidate::selectPlace(const QModelIndex &row)
{
    if (!row.isValid())
        return;
    const TidyMessage &message = m_messages->message(row.row());
    if (message.line >= 0)
        m_context.editor.select(rangeAt(m_context.editor.text(), message.line, message.column));
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/frmprog.h"

#include "core/appcontext.h"
#include "core/prompts.h"
#include "core/vbtext.h"
#include "ftp/ftpclient.h"
#include "ui_frmprog.h"

#include <QPointer>

#include <algorithm>
#include <limits>
#include <utility>

#include <time.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In milliseconds. Updating the display more often than it can be read would only cost time.
constexpr quint32 paintInterval = 1000 / 20;

/// Limits a bar's maximum to what its numbers can hold. It is never 0, which would mean "unknown".
void setBarMaximum(QProgressBar &bar, double maximum)
{
    bar.setRange(0, static_cast<int>(std::clamp(maximum, 1.0, static_cast<double>(std::numeric_limits<int>::max()))));
    bar.setValue(0);
}

void setBarValue(QProgressBar &bar, qint64 value)
{
    bar.setValue(static_cast<int>(std::min<qint64>(value, bar.maximum())));
}

/// Milliseconds since the machine was started, which wrap around after 49 days. Called about a million times per
/// gigabyte, so it uses the cheap clock, whose resolution is a few milliseconds.
quint32 tickCount()
{
    constexpr qint64 perSecond = 1000;
    constexpr qint64 nanoseconds = 1'000'000;
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<quint32>(now.tv_sec * perSecond + now.tv_nsec / nanoseconds);
}

} // namespace

frmProg::frmProg(FtpClient &client, LogDisplay &log, PanelDisplay &panels, const AppContext &context, QWidget *owner)
    : QDialog(owner)
    , m_ui(std::make_unique<Ui::frmProg>())
    , m_client(client)
    , m_prompts(context.prompts)
    , m_queue(std::exchange(client.queue, {}))
    , m_engine(client, context.files, context.prompts, {log, panels, *this}, tickCount)
{
    m_ui->setupUi(this);
    showQueue();
    connect(m_ui->Command1, &QPushButton::clicked, this, &frmProg::cancel);
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmProg::run);
}

frmProg::~frmProg() = default;

void frmProg::showQueue()
{
    for (const TransferQueue::File &file : m_queue.files) {
        m_ui->List1->addItem(file.name);
        m_ui->List2->addItem(QString::number(file.size));
    }
    m_ui->Label2->setText(m_queue.countText());
    m_ui->Command3->setText(m_queue.startCaption());
    m_ui->Label4->setText(m_queue.movedCaption());
    m_ui->lbCelkem->setText(QString::number(m_queue.total()));
    // The number of the current file goes into the blanks before the slash in the count's text.
    const QString text = m_queue.countText();
    const int gap = m_ui->Label2->fontMetrics().horizontalAdvance(text.first(text.indexOf(u'/')));
    m_ui->lbCount->setFixedWidth(gap);
}

void frmProg::run()
{
    m_ui->Command1->setEnabled(true);
    // The program may be closed while a message of the run is open; then the window is gone before the run returns.
    const QPointer<frmProg> self(this);
    const TransferEngine::Outcome outcome = m_engine.run(m_queue);
    if (self && outcome == TransferEngine::Outcome::Completed)
        accept();
}

/// A run doesn't process input, so when this click is handled there is nothing left to cancel.
void frmProg::cancel()
{
    if (m_engine.handle() == 0)
        return;
    m_client.operations.InternetCloseHandle(m_engine.handle());
    m_prompts.tell(u"Opertion Canceled."_s);
}

void frmProg::beginRun(qint64 total, double barMaximum)
{
    setBarMaximum(*m_ui->ProgressBar2, barMaximum);
    m_ui->lbLeft->setText(CStr(static_cast<double>(total) / 1024));
    m_ui->lbCelkem->setText(Format(static_cast<double>(total), u"### ### ###.##") + u" Kb"_s);
    m_progress.reset();
    repaint();
    m_paintedAt = tickCount();
}

void frmProg::beginFile(int number, const QString &line, double barMaximum)
{
    m_file = {number, line, barMaximum};
    m_isFileShown = false;
    if (m_progress)
        m_progress->beginFile();
    if (isPaintDue())
        showAll();
}

void frmProg::moved(const TransferProgress &progress)
{
    m_progress = progress;
    if (isPaintDue())
        showAll();
}

void frmProg::endFile(const TransferProgress &progress)
{
    m_progress = progress;
}

bool frmProg::isPaintDue() const
{
    return tickCount() - m_paintedAt >= paintInterval;
}

/// Repaints immediately, because events are not processed during a run, and only what has changed.
void frmProg::showAll()
{
    if (!m_isFileShown)
        showFile();
    if (m_progress)
        show(*m_progress);
    m_paintedAt = tickCount();
}

void frmProg::showFile()
{
    m_isFileShown = true;
    setBarMaximum(*m_ui->ProgressBar1, m_file.barMaximum);
    setText(*m_ui->Label1, m_file.line);
    setText(*m_ui->lbCount, QString::number(m_file.number));
}

void frmProg::setText(QLabel &label, const QString &text)
{
    if (label.text() == text)
        return;
    label.setText(text);
    label.repaint();
}

void frmProg::show(const TransferProgress &progress)
{
    setText(*m_ui->lbFar, progress.movedText());
    setText(*m_ui->lbLeft, progress.leftText());
    setBarValue(*m_ui->ProgressBar1, progress.doneFile);
    setBarValue(*m_ui->ProgressBar2, progress.doneAll);
    if (!progress.isTimed)
        return;
    setText(*m_ui->lbTime, progress.timeText());
    setText(*m_ui->lbSpeed, progress.rateText());
    setText(*m_ui->lbTimeLeft, progress.timeLeftText());
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/frmprog.h"

#include "core/appcontext.h"
#include "core/prompts.h"
#include "core/vbtext.h"
#include "ftp/ftpclient.h"
#include "ui_frmprog.h"

#include <QPointer>

#include <algorithm>
#include <chrono>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// In milliseconds: showing the progress more often than a screen is drawn would only cost time.
constexpr qint64 paintInterval = 1000 / 60;

/// A bar counts in bytes as long as its numbers allow, and never has an end of 0, which would stand for "unknown".
void setBarMaximum(QProgressBar &bar, double maximum)
{
    bar.setRange(0, int(std::clamp(maximum, 1.0, double(std::numeric_limits<int>::max()))));
    bar.setValue(0);
}

void setBarValue(QProgressBar &bar, qint64 value)
{
    bar.setValue(int(std::min<qint64>(value, bar.maximum())));
}

/// Milliseconds since the machine was started, which wrap around after 49 days.
quint32 tickCount()
{
    using namespace std::chrono;
    return quint32(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
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
    // The number of the current file stands in the gap that the count leaves in front of its slash.
    const QString text = m_queue.countText();
    const int gap = m_ui->Label2->fontMetrics().horizontalAdvance(text.first(text.indexOf(u'/')));
    m_ui->lbCount->setFixedWidth(gap);
}

void frmProg::run()
{
    m_ui->Command1->setEnabled(true);
    // A message of the run may outlive the window, when the whole program is ended meanwhile.
    const QPointer<frmProg> self(this);
    const TransferEngine::Outcome outcome = m_engine.run(m_queue);
    if (self && outcome == TransferEngine::Outcome::Completed)
        accept();
}

/// The run takes no input while it lasts, so that there is nothing left to cancel as soon as this is heard of.
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
    m_ui->lbLeft->setText(CStr(double(total) / 1024));
    m_ui->lbCelkem->setText(Format(double(total), u"### ### ###.##") + u" Kb"_s);
    paint();
}

void frmProg::beginFile(int number, const QString &line, double barMaximum)
{
    setBarMaximum(*m_ui->ProgressBar1, barMaximum);
    m_ui->Label1->setText(line);
    m_ui->lbCount->setText(QString::number(number));
    if (isPaintDue())
        paint();
}

void frmProg::moved(const TransferProgress &progress)
{
    if (!isPaintDue())
        return;
    show(progress);
    paint();
}

void frmProg::endFile(const TransferProgress &progress)
{
    show(progress);
}

bool frmProg::isPaintDue() const
{
    return m_sincePainted.elapsed() >= paintInterval;
}

/// At once, because events are not handled during a run.
void frmProg::paint()
{
    repaint();
    m_sincePainted.start();
}

void frmProg::show(const TransferProgress &progress)
{
    m_ui->lbFar->setText(progress.movedText());
    m_ui->lbLeft->setText(progress.leftText());
    setBarValue(*m_ui->ProgressBar1, progress.doneFile);
    setBarValue(*m_ui->ProgressBar2, progress.doneAll);
    if (!progress.isTimed)
        return;
    m_ui->lbTime->setText(progress.timeText());
    m_ui->lbSpeed->setText(progress.rateText());
    m_ui->lbTimeLeft->setText(progress.timeLeftText());
}

} // namespace zephira

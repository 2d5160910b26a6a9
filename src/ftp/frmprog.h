// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/transferengine.h"

#include <QDialog>

#include <memory>
#include <optional>

class QLabel;

namespace zephira {

namespace Ui {
class frmProg;
}

struct AppContext;

/// Transfers the queue that was filled before it opened, and shows the progress. Nothing is transferred until the start
/// button is pressed. During a run the window takes no input; it closes itself at the end, but stays open if the run
/// had to stop.
class frmProg final : public QDialog, private TransferDisplay
{
    Q_OBJECT

public:
    /// Takes the queue out of the client. `log` and `panels` must outlive the form.
    frmProg(FtpClient &client, LogDisplay &log, PanelDisplay &panels, const AppContext &context, QWidget *owner);
    ~frmProg() override;

private:
    void beginRun(qint64 total, double barMaximum) override;
    void beginFile(int number, const QString &line, double barMaximum) override;
    void moved(const TransferProgress &progress) override;
    void endFile(const TransferProgress &progress) override;
    void showAll() override;

    void showQueue();
    void run();
    void cancel();
    bool isPaintDue() const;
    void setText(QLabel &label, const QString &text);
    void showFile();
    void show(const TransferProgress &progress);

    const std::unique_ptr<Ui::frmProg> m_ui;
    FtpClient &m_client;
    Prompts &m_prompts;
    const TransferQueue m_queue;
    TransferEngine m_engine;
    /// As counted by tickCount().
    quint32 m_paintedAt = 0;

    /// The arguments of the last beginFile(), and the progress at that time.
    struct File {
        int number = 0;
        QString line;
        double barMaximum = 0;
    };
    File m_file;
    /// Empty before the first block of a run.
    std::optional<TransferProgress> m_progress;
    bool m_isFileShown = true;
};

} // namespace zephira

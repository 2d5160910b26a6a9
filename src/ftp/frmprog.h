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

/// Moves the queue that its opener has filled, and shows how far it has come. Nothing moves until the start button is
/// pressed. During a run the window takes no input; it closes itself at the end, and stays open if the run had to stop.
class frmProg final : public QDialog, private TransferDisplay
{
    Q_OBJECT

public:
    /// Takes the queue out of the client. Log and panels outlive the form.
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
    /// In ticks.
    quint32 m_paintedAt = 0;

    /// What was told of the current file, and how far the run was then.
    struct File {
        int number = 0;
        QString line;
        double barMaximum = 0;
    };
    File m_file;
    /// Nothing before the first block of a run.
    std::optional<TransferProgress> m_progress;
    bool m_isFileShown = true;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpdesk.h"

#include <map>

namespace zephira {

/// The FTP window as the other windows see it. It records its calls. The time in its log is the morning of 5 March
/// 2001.
struct RecordingDesk final : FtpDesk {
    QDateTime now{QDate(2001, 3, 5), QTime(9, 7)};
    QString logged;
    /// The latest text of each panel, by number.
    std::map<int, QString> panels;
    bool busy = false;
    bool binary = false;
    bool passive = false;
    /// The other calls by name, in order.
    QStringList calls;

    void log(LogEntry entry, const QStringList &parts = {}) override { logged += logText(entry, now, parts); }
    void clearLog() override { logged.clear(); }
    void setPanel(int panel, const QString &text) override { panels[panel] = text; }
    void setBusy(bool on) override { busy = on; }
    void markTransferType(bool on) override { binary = on; }
    void markPassive(bool on) override { passive = on; }
    void clearRemoteTree() override { calls += QStringLiteral("clearRemoteTree"); }
    void addRemoteRoot() override { calls += QStringLiteral("addRemoteRoot"); }
    void List() override { calls += QStringLiteral("List"); }
    void openModal(const QString &form) override { calls += QStringLiteral("openModal ") + form; }
    void refreshLocal() override { calls += QStringLiteral("refreshLocal"); }
    void refreshRemote() override { calls += QStringLiteral("refreshRemote"); }
};

} // namespace zephira

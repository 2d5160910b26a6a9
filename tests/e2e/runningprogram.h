// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "e2e/programfolder.h"

#include <QProcess>
#include <QStringList>

namespace zephira {

/// The program as a process on the test's display. Its windows are seen and driven from outside, as a user sees them.
class RunningProgram
{
public:
    RunningProgram(const ProgramFolder &folder, const QStringList &arguments);
    ~RunningProgram();

    /// Titles of the windows that show, oldest first.
    QStringList windows() const;
    /// Waits until exactly these titles show (in any order); gives what shows in the end.
    QStringList waitForWindows(const QStringList &titles) const;
    /// Sends a key to the window of that title, which takes the focus first: "Escape", "Return", "alt+F4".
    void key(const QString &title, const QString &keys) const;
    void type(const QString &title, const QString &text) const;
    /// Asks a window to close, as its close box does.
    void close(const QString &title) const;

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// Waits for the end; the exit status, or -1 if the process still runs or was killed by a signal.
    int waitForEnd();
    QByteArray standardOutput() { return m_process.readAllStandardOutput(); }
    QByteArray standardError() { return m_process.readAllStandardError(); }
    qint64 pid() const { return m_process.processId(); }

private:
    QString windowId(const QString &title) const;

    QProcess m_process;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "e2e/programfolder.h"

#include <QProcess>
#include <QStringList>

#include <memory>

namespace zephira {

/// The program as a process on the test's display. Its windows are seen and driven from outside, as a user sees them.
class RunningProgram
{
public:
    /// `wrapper` is a command that changes something about its own process and then becomes the program.
    RunningProgram(const ProgramFolder &folder, const QStringList &arguments, const QStringList &wrapper = {});
    ~RunningProgram();

    /// The caption of the main window while it shows the file of that path.
    static QString captionOf(const QString &path) { return QStringLiteral("Zephira - [") + path + QLatin1Char(']'); }
    /// A wrapper that binds even the superuser to the permissions of files; none for anybody else.
    static QStringList boundByPermissions();
    /// A wrapper under which a file that grows beyond the process's limit is an error, as on a full disk, and no signal.
    static QStringList withoutSizeSignal();

    /// Titles of the windows that show, oldest first.
    QStringList windows() const;
    /// Waits until exactly these titles show (in any order); gives what shows in the end.
    QStringList waitForWindows(const QStringList &titles) const;
    /// Waits until a window of that title shows, among others.
    bool waitForWindow(const QString &title) const;
    bool waitUntilGone(const QString &title) const;
    /// The window system's number of the window of that title; empty while none shows.
    QString windowId(const QString &title) const;

    /// Sends keys, divided by blanks, to the window of that title, which takes the focus first: "Escape", "alt+f e".
    void key(const QString &title, const QString &keys) const;
    /// Begins to send keys, as often as told, to a window that need not have the focus, and gives the command that does it.
    std::unique_ptr<QProcess> keyInBackground(const QString &title, const QString &keys, int times) const;
    void type(const QString &title, const QString &text) const;
    /// Waits for a dialog and answers it by keys.
    void answer(const QString &dialog, const QString &keys) const;
    /// Waits for a dialog with a line to fill in, fills it in and ends it by Return.
    void fillIn(const QString &dialog, const QString &text) const;
    /// Asks a window to close, as its close box does.
    void close(const QString &title) const;

    /// Colour of the screen in the middle of the window of that title, as "#rrggbb" in capitals.
    QString middleColour(const QString &title) const;
    /// Waits until the middle of the window has that colour.
    bool waitForMiddleColour(const QString &title, const QString &colour) const;

    /// From now on a write that makes a file larger than this fails.
    void limitFileSize(qint64 bytes) const;
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// Waits for the end; the exit status, or -1 if the process still runs or was killed by a signal.
    int waitForEnd();
    /// Ends it as a crash does: nothing more is written.
    void kill();
    QByteArray standardOutput() { return m_process.readAllStandardOutput(); }
    QByteArray standardError() { return m_process.readAllStandardError(); }
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};

} // namespace zephira

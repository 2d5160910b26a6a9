// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "e2e/programfolder.h"

#include <QProcess>
#include <QStringList>

#include <memory>

namespace zephira {

/// The program as a process on the test's display. Its windows are observed and driven from outside, as by a user.
class RunningProgram
{
public:
    /// `wrapper` is a command that changes something about its own process and then executes the program.
    RunningProgram(const ProgramFolder &folder, const QStringList &arguments, const QStringList &wrapper = {});
    ~RunningProgram();

    /// The caption of the main window while it shows the file with that path.
    static QString captionOf(const QString &path) { return QStringLiteral("Zephira - [") + path + QLatin1Char(']'); }
    /// A wrapper that makes file permissions apply even to root; empty for other users.
    static QStringList boundByPermissions();
    /// A wrapper under which writing beyond the process's file size limit is an error, as on a full disk, instead of a
    /// signal.
    static QStringList withoutSizeSignal();

    /// Titles of the visible windows, oldest first.
    QStringList windows() const;
    /// Waits until exactly the windows with these titles are visible (in any order); returns the titles visible in the
    /// end.
    QStringList waitForWindows(const QStringList &titles) const;
    /// Waits until a window with that title is visible; there may be others.
    bool waitForWindow(const QString &title) const;
    bool waitUntilGone(const QString &title) const;
    /// The window id of the window with that title; empty if none is visible.
    QString windowId(const QString &title) const;

    /// Activates the window with that title and sends it keys, separated by blanks: "Escape", "alt+f e".
    void key(const QString &title, const QString &keys) const;
    /// Starts sending keys, `times` times, to a window that need not have the focus; returns the process that sends
    /// them.
    std::unique_ptr<QProcess> keyInBackground(const QString &title, const QString &keys, int times) const;
    void type(const QString &title, const QString &text) const;
    /// Waits for a dialog and answers it with keys.
    void answer(const QString &dialog, const QString &keys) const;
    /// Waits for a dialog with a line of text, types the text and presses Return.
    void fillIn(const QString &dialog, const QString &text) const;
    /// Asks a window to close, as its close button does.
    void close(const QString &title) const;

    /// Cuts the connection of the window's program to the display, as the display's own end does.
    void cutFromDisplay(const QString &title) const;

    /// Colour of the screen in the middle of the window with that title, as "#RRGGBB".
    QString middleColour(const QString &title) const;
    /// Waits until the middle of the window has that colour.
    bool waitForMiddleColour(const QString &title, const QString &colour) const;

    /// Waits until no thread of the program has had work for a tenth of a second: keys sent before have taken effect.
    bool waitUntilIdle() const;

    /// From now on a write that would make a file larger than this fails.
    void limitFileSize(qint64 bytes) const;
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// Waits for the end of the process; returns its exit status, or -1 if it still runs or was killed by a signal.
    int waitForEnd();
    /// Ends the process as a crash does: it writes nothing more.
    void kill();
    QByteArray standardOutput() { return m_process.readAllStandardOutput(); }
    QByteArray standardError() { return m_process.readAllStandardError(); }
    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};

} // namespace zephira

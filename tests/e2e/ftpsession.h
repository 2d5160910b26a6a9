// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "ftp/net/ftpserver.h"

#include <QTest>

namespace zephira {

namespace ftptitles {
inline const QString ftpWindow = QStringLiteral("Zephira. FTP");
inline const QString sites = QStringLiteral("FTP Sites");
inline const QString transfer = QStringLiteral("Data transfer");
inline const QString logName = QStringLiteral("Log File");
} // namespace ftptitles

/// The FTP window of a running program, driven by keys.
class FtpSession
{
public:
    /// Over an empty document, or over the one with that path.
    explicit FtpSession(const ProgramFolder &folder, const QString &file = {}, const QStringList &wrapper = {})
        : m_folder(folder), m_program(folder, {file.isEmpty() ? QStringLiteral("/nodialog") : file}, wrapper)
    {
        const QString main = file.isEmpty() ? titles::untitled : RunningProgram::captionOf(file);
        QVERIFY(m_program.waitForWindow(main));
        m_program.key(main, QStringLiteral("alt+t f"));
        QVERIFY(m_program.waitForWindow(ftptitles::ftpWindow));
    }

    RunningProgram &program() { return m_program; }
    QString profile() const { return m_folder.path() + QStringLiteral("/Loopback.ftp"); }

    /// Fills in the dialog and saves it as a profile.
    void saveProfile(const FtpServer &server, const QString &password)
    {
        m_program.key(ftptitles::ftpWindow, QStringLiteral("alt+f c"));
        QVERIFY(m_program.waitForWindow(ftptitles::sites));
        // Typing a user unchecks "Anonymous", which empties user and password, so the first letter is typed twice.
        const QString first = server.user().first(1);
        m_program.key(ftptitles::sites, tabKeys(1));
        m_program.type(ftptitles::sites, QStringLiteral("Loopback"));
        m_program.key(ftptitles::sites, tabKeys(1));
        m_program.type(ftptitles::sites, server.host());
        m_program.key(ftptitles::sites, tabKeys(1) + QStringLiteral(" ctrl+a"));
        m_program.type(ftptitles::sites, first + server.user());
        m_program.key(ftptitles::sites, tabKeys(1));
        m_program.type(ftptitles::sites, password);
        m_program.key(ftptitles::sites, tabKeys(1) + QStringLiteral(" ctrl+a"));
        m_program.type(ftptitles::sites, QString::number(server.port()));
        m_program.key(ftptitles::sites, tabKeys(2) + QStringLiteral(" space")); // "Save password"
        m_program.key(ftptitles::sites, tabKeys(7) + QStringLiteral(" space")); // "Save"
        m_program.answer(titles::message, QStringLiteral("Return"));
        QVERIFY(m_program.waitUntilGone(titles::message));
    }

    /// Chooses the only profile in the dialog's tree, and connects.
    void connectByProfile()
    {
        m_program.key(ftptitles::sites, QStringLiteral("Escape"));
        QVERIFY(m_program.waitUntilGone(ftptitles::sites));
        m_program.key(ftptitles::ftpWindow, QStringLiteral("alt+f c"));
        QVERIFY(m_program.waitForWindow(ftptitles::sites));
        m_program.key(ftptitles::sites, QStringLiteral("Down Down Return"));
        QVERIFY(m_program.waitUntilGone(ftptitles::sites));
    }

    /// Runs the ftptitles::transfer that a command has prepared.
    void runTransfer()
    {
        m_program.answer(ftptitles::transfer, QStringLiteral("Return"));
        m_program.answer(titles::message, QStringLiteral("Return"));
        QVERIFY(m_program.waitUntilGone(ftptitles::transfer));
    }

    QString savedLog() const { return m_folder.path() + QStringLiteral("/Logon/session.txt"); }
    void saveLog()
    {
        m_program.key(ftptitles::ftpWindow, QStringLiteral("alt+f s"));
        m_program.fillIn(ftptitles::logName, QStringLiteral("session"));
        m_program.answer(titles::message, QStringLiteral("Return"));
        QVERIFY(m_program.waitUntilGone(titles::message));
    }

private:
    /// Keys that move the focus forward by `count` controls.
    static QString tabKeys(int count) { return QStringList(count, QStringLiteral("Tab")).join(u' '); }

    const ProgramFolder &m_folder;
    RunningProgram m_program;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/crashreports.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QFileInfo>
#include <QTest>

#include <array>
#include <csignal>

#include <sys/stat.h>

using namespace zephira;
using namespace zephira::titles;
using namespace Qt::StringLiterals;

namespace {

/// Milliseconds within which a changed text must be in a copy.
constexpr int recoveryPatience = 15000;

} // namespace

/// The copies of unsaved text: when they are created, who may read them, when they are removed.
class TstRecovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Four processes at once, so that the test waits only once for the copies.
    void aCopyComesAndGoes()
    {
        struct Session {
            ProgramFolder folder;
            QString path = folder.write(u"page.txt"_s, "text");
            QString caption = RunningProgram::captionOf(path);
            RunningProgram program{folder, {path}};
        };
        std::array<Session, 4> sessions;
        // A window that opens takes the focus, so nothing is typed before all of them are open.
        for (const Session &session : sessions)
            QVERIFY(session.program.waitForWindow(session.caption));
        for (const Session &session : sessions)
            session.program.type(session.caption, u"unsaved "_s);
        for (const Session &session : sessions) {
            QTRY_COMPARE_WITH_TIMEOUT(session.folder.recoveryCopies().size(), 1, recoveryPatience);
            const QString copy = session.folder.recoveryCopies().first();
            QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(copy), "unsaved text", patience);
            QCOMPARE(modeOf(copy), mode_t(0600));
            QCOMPARE(modeOf(QFileInfo(copy).path()), mode_t(0700));
        }
        auto &[killed, saved, closed, left] = sessions;

        killed.program.kill();
        QCOMPARE(killed.folder.recoveryCopies().size(), 1);
        QCOMPARE(ProgramFolder::read(killed.folder.recoveryCopies().first()), "unsaved text");
        QCOMPARE(ProgramFolder::read(killed.path), "text");

        saved.program.key(saved.caption, u"ctrl+s"_s);
        QTRY_COMPARE_WITH_TIMEOUT(ProgramFolder::read(saved.path), "unsaved text", patience);
        QTRY_COMPARE_WITH_TIMEOUT(saved.folder.recoveryCopies(), QStringList(), patience);

        closed.program.close(closed.caption);
        closed.program.answer(modified, u"alt+n"_s);
        QCOMPARE(closed.program.waitForEnd(), 0);
        QCOMPARE(closed.folder.recoveryCopies(), QStringList());

        left.program.key(left.caption, u"alt+f e"_s);
        QCOMPARE(left.program.waitForEnd(), 0);
        QCOMPARE(left.folder.recoveryCopies(), QStringList());
        QCOMPARE(ProgramFolder::read(left.path), "text");
    }

    /// A process that is terminated by a signal saves a copy of what was typed a moment ago.
    void aTextOutlivesTheEndOfItsProcess_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGHUP") << SIGHUP;
        QTest::newRow("SIGINT") << SIGINT;
    }

    void aTextOutlivesTheEndOfItsProcess()
    {
        QFETCH(int, signal);
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "text");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.type(caption, u"unsaved "_s);
        QVERIFY(program.waitUntilIdle());
        QCOMPARE(folder.recoveryCopies(), QStringList());
        QCOMPARE(::kill(static_cast<pid_t>(program.pid()), signal), 0);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(folder.recoveryCopies().size(), 1);
        QCOMPARE(ProgramFolder::read(folder.recoveryCopies().first()), "unsaved text");
        QCOMPARE(ProgramFolder::read(path), "text");
    }

    /// So does one whose connection to the display is cut: nobody asks the program then, and the library ends it.
    void aTextOutlivesItsDisplay()
    {
        ProgramFolder folder;
        const QString path = folder.write(u"page.txt"_s, "text");
        const QString caption = RunningProgram::captionOf(path);
        RunningProgram program(folder, {path});
        QVERIFY(program.waitForWindow(caption));
        program.type(caption, u"unsaved "_s);
        QVERIFY(program.waitUntilIdle());
        QCOMPARE(folder.recoveryCopies(), QStringList());
        program.cutFromDisplay(caption);
        QCOMPARE(program.waitForEnd(), 1);
        QCOMPARE(folder.recoveryCopies().size(), 1);
        QCOMPARE(ProgramFolder::read(folder.recoveryCopies().first()), "unsaved text");
        QCOMPARE(ProgramFolder::read(path), "text");
    }

    /// It names the program's calls, and holds nothing of the text.
    void aCrashLeavesAReport_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("SIGSEGV") << SIGSEGV << QByteArray("SIGSEGV");
        QTest::newRow("SIGABRT") << SIGABRT << QByteArray("SIGABRT");
    }

    void aCrashLeavesAReport()
    {
        QFETCH(int, signal);
        QFETCH(QByteArray, name);
        ProgramFolder folder;
        const QString path = folder.write(u"secret page.txt"_s, "confidential");
        const QString caption = RunningProgram::captionOf(path);
        QString report;
        {
            RunningProgram program(folder, {path});
            QVERIFY(program.waitForWindow(caption));
            program.type(caption, u"unsaved"_s);
            QVERIFY(program.waitUntilIdle());
            QCOMPARE(::kill(static_cast<pid_t>(program.pid()), signal), 0);
            QCOMPARE(program.waitForEnd(), -1);
            const QStringList files = folder.recoveryCopies().filter(u"/crash-"_s);
            QCOMPARE(files.size(), 1);
            report = files.constFirst();
        }
        QCOMPARE(modeOf(report), mode_t(0600));
        QCOMPARE(modeOf(QFileInfo(report).path()), mode_t(0700));
        const QByteArray text = ProgramFolder::read(report);
        QVERIFY2(text.startsWith("Zephira 2.1.0 crashed."), text.constData());
        QVERIFY2(text.contains("\nSignal: " + name + '\n'), text.constData());
        QVERIFY2(text.contains("libQt6Core"), text.constData());
        for (const char *word : {"confidential", "unsaved", "secret"})
            QVERIFY2(!text.contains(word), text.constData());
        QCOMPARE(ProgramFolder::read(path), "confidential");

        // The next start finds it, and asks nothing.
        const QList<CrashReport> found = crashReports(QFileInfo(report).path());
        QCOMPARE(found.size(), 1);
        QCOMPARE(found[0].path, report);
        RunningProgram next(folder, {u"/nodialog"_s});
        QCOMPARE(next.waitForWindows({untitled}), QStringList{untitled});
        next.close(untitled);
        QCOMPARE(next.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(report), text);
    }

    /// The copy of a killed process stays for the user to find: a later start leaves it alone and asks nothing.
    void aCopyOutlivesTheNextStart()
    {
        ProgramFolder folder;
        const QString copy =
            folder.write(u"home/.config/Zephira/recovery/open-20200101-000000-000-1-page.txt"_s, "lost");
        RunningProgram program(folder, {u"/nodialog"_s});
        QCOMPARE(program.waitForWindows({untitled}), QStringList{untitled});
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
        QCOMPARE(ProgramFolder::read(copy), "lost");
    }
};

ZEPHIRA_TEST(TstRecovery)
#include "tst_recovery.moc"

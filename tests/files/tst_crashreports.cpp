// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/crashreports.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <functional>
#include <thread>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The test program handles them all.
constexpr int handled[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGTERM, SIGINT, SIGHUP, SIGQUIT};

/// Runs the function in a process of its own, which has the system's handling of signals; returns how it ended.
int inOwnProcess(const std::function<void()> &run)
{
    const pid_t process = ::fork();
    if (process == 0) {
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        for (const int number : handled)
            ::signal(number, SIG_DFL);
        run();
        ::_exit(0);
    }
    int status = -1;
    ::waitpid(process, &status, 0);
    return status;
}

/// Uses up the stack, given a depth that none is large enough for.
int deeper(volatile char *above, int depth)
{
    volatile char here[4096] = {};
    here[0] = *above;
    return depth == 0 ? 0 : deeper(here, depth - 1) + here[0];
}

} // namespace

/// The reports of crashed processes.
class TstCrashReports final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCrashIsReported_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("SIGSEGV") << SIGSEGV << QByteArray("SIGSEGV");
        QTest::newRow("SIGABRT") << SIGABRT << QByteArray("SIGABRT");
        QTest::newRow("SIGBUS") << SIGBUS << QByteArray("SIGBUS");
        QTest::newRow("SIGFPE") << SIGFPE << QByteArray("SIGFPE");
        QTest::newRow("SIGILL") << SIGILL << QByteArray("SIGILL");
    }

    void aCrashIsReported()
    {
        QFETCH(int, number);
        QFETCH(QByteArray, name);
        const QTemporaryDir home;
        const QString folder = home.filePath(u"recovery"_s);
        const int status = inOwnProcess([&] {
            CrashWatch watch(folder);
            watch.prepareCallList();
            ::raise(number);
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), number);
        const QList<CrashReport> reports = crashReports(folder);
        QCOMPARE(reports.size(), 1);
        QVERIFY(qAbs(reports[0].began.secsTo(QDateTime::currentDateTime())) < 60);
        QCOMPARE(modeOf(reports[0].path), mode_t(0600));
        QCOMPARE(modeOf(folder), mode_t(0700));
        const QByteArray text = contentOf(reports[0].path);
        QVERIFY2(text.startsWith("Zephira " ZEPHIRA_VERSION " crashed."), text.constData());
        QVERIFY2(text.contains("\nSignal: " + name + '\n'), text.constData());
        QVERIFY2(text.mid(text.indexOf("Calls, the innermost first:\n")).count('\n') >= 3, text.constData());
    }

    void aFullStackIsReported()
    {
        const QTemporaryDir home;
        const int status = inOwnProcess([&] {
            const CrashWatch watch(home.path());
            char begin = 1;
            ::_exit(deeper(&begin, 1 << 24) & 1);
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(crashReports(home.path()).size(), 1);
    }

    /// Before the window shows, the list of calls isn't prepared.
    void anEarlyCrash()
    {
        const QTemporaryDir home;
        inOwnProcess([&] {
            const CrashWatch watch(home.path());
            ::raise(SIGSEGV);
        });
        const QList<CrashReport> reports = crashReports(home.path());
        QCOMPARE(reports.size(), 1);
        QVERIFY(contentOf(reports[0].path).endsWith("still starting.\n"));
    }

    void crashesOfSeveralThreadsAreOne()
    {
        const QTemporaryDir home;
        const int status = inOwnProcess([&] {
            CrashWatch watch(home.path());
            watch.prepareCallList();
            std::thread threads[4];
            for (std::thread &thread : threads)
                thread = std::thread([] { ::raise(SIGSEGV); });
            for (std::thread &thread : threads)
                thread.join();
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(crashReports(home.path()).size(), 1);
    }

    /// Only the limit in force: a program that is started from this one may want its core files.
    void coreFilesAreForgone()
    {
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_CORE, &before), 0);
        const rlimit raised = {before.rlim_max, before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_CORE, &raised), 0);
        forgoCoreFiles();
        rlimit after = {};
        QCOMPARE(::getrlimit(RLIMIT_CORE, &after), 0);
        ::setrlimit(RLIMIT_CORE, &before);
        QCOMPARE(after.rlim_cur, rlim_t(0));
        QCOMPARE(after.rlim_max, before.rlim_max);
    }

    void whatIsNoCrashIsNotReported()
    {
        const QTemporaryDir home;
        for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGKILL, SIGQUIT}) {
            inOwnProcess([&] {
                const CrashWatch watch(home.path());
                ::raise(number);
            });
        }
        inOwnProcess([&] { const CrashWatch watch(home.path()); });
        // The program has ended; what crashes afterwards isn't the program.
        inOwnProcess([&] {
            static_cast<void>(CrashWatch(home.path()));
            ::raise(SIGSEGV);
        });
        // A child that is about to run another program.
        inOwnProcess([&] {
            const CrashWatch watch(home.path());
            if (const pid_t child = ::fork(); child == 0)
                ::raise(SIGSEGV);
            else
                ::waitpid(child, nullptr, 0);
        });
        QCOMPARE(QDir(home.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    /// Sanitizers and test programs report crashes themselves.
    void handlersOfOthersStay()
    {
        const QTemporaryDir home;
        const int status = inOwnProcess([&] {
            ::signal(SIGSEGV, [](int) { ::_exit(7); });
            const CrashWatch watch(home.path());
            ::raise(SIGSEGV);
        });
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 7);
        QVERIFY(crashReports(home.path()).isEmpty());
    }

    /// Whatever is in the report's place, it isn't written over or followed.
    void aPlantedFileStays()
    {
        const QTemporaryDir home;
        const QString target = putFile(home.filePath(u"target"_s), "kept");
        inOwnProcess([&] {
            const CrashWatch watch(home.path());
            const QDateTime now = QDateTime::currentDateTimeUtc();
            for (int i = -2000; i < 2000; ++i) {
                const QString time = now.addMSecs(i).toString(u"yyyyMMdd-HHmmss-zzz"_s);
                QFile::link(target, home.filePath(u"crash-%1-%2.txt"_s.arg(time).arg(::getpid())));
            }
            ::raise(SIGSEGV);
        });
        QCOMPARE(contentOf(target), "kept");
        QCOMPARE(QDir(home.path()).entryList(QDir::Files | QDir::NoSymLinks), QStringList{u"target"_s});
    }

    void onlyTheNewestAreKept()
    {
        const QTemporaryDir home;
        for (int i = 0; i < 8; ++i)
            putFile(home.filePath(u"crash-20240229-12000%1-000-4711.txt"_s.arg(i)), "x");
        const QString other = putFile(home.filePath(u"crash-notes.txt"_s), "x");
        QList<CrashReport> reports = crashReports(home.path());
        QCOMPARE(reports.size(), keptCrashReports);
        QCOMPARE(reports[0].path, home.filePath(u"crash-20240229-120007-000-4711.txt"_s));
        QCOMPARE(reports[0].began.toUTC(), QDateTime({2024, 2, 29}, {12, 0, 7}, Qt::UTC));
        QVERIFY(!QFile::exists(home.filePath(u"crash-20240229-120002-000-4711.txt"_s)));
        QVERIFY(QFile::exists(other));

        QVERIFY(putAside(reports[0]));
        QVERIFY(QFile::exists(home.filePath(u"kept-crash-20240229-120007-000-4711.txt"_s)));
        QVERIFY(!putAside(reports[0]));
        reports.removeFirst();
        QCOMPARE(crashReports(home.path()), reports);
        QCOMPARE(crashReports(home.filePath(u"none"_s)), QList<CrashReport>());
    }
};

ZEPHIRA_TEST(TstCrashReports)
#include "tst_crashreports.moc"

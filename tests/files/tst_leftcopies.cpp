// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/leftcopies.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QString write(const QTemporaryDir &folder, const QString &name)
{
    return putFile(folder.filePath(name), "text");
}

/// The id of a process that has ended.
qint64 endedProcess()
{
    QProcess process;
    process.start(u"true"_s, QStringList());
    const qint64 number = process.waitForStarted() ? process.processId() : 0;
    process.waitForFinished();
    return number;
}

} // namespace

/// The copies left behind by programs that have ended.
class TstLeftCopies final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Its document's name may have any character that a file's name can have.
    void namesWithLineEnds()
    {
        const QTemporaryDir folder;
        const QString prefix = u"open-20240229-120000-000-%1-"_s.arg(endedProcess());
        for (const QString &name : {u"a\nb.htm"_s, u"\n"_s, u"a.htm\n"_s}) {
            write(folder, prefix + name);
            const QList<LeftCopy> copies = leftCopies(folder.path());
            QCOMPARE(copies.size(), 1);
            QCOMPARE(copies.front().name, name);
            QVERIFY(putAside(copies.front()).ok());
        }
    }

    /// A copy of another running program is that program's own until it has ended.
    void copiesOfAnotherRunningProgram()
    {
        const QTemporaryDir folder;
        const pid_t other = ::fork();
        if (other == 0) {
            for (;;)
                ::pause();
        }
        write(folder, u"open-20240229-120000-000-%1-a.htm"_s.arg(other));
        const QList<LeftCopy> whileItRuns = leftCopies(folder.path());
        ::kill(other, SIGKILL);
        ::waitpid(other, nullptr, 0);
        QCOMPARE(whileItRuns, QList<LeftCopy>());
        QCOMPARE(leftCopies(folder.path()).size(), 1);
    }

    void copiesOfEndedProcesses()
    {
        const QTemporaryDir folder;
        const QString ended = QString::number(endedProcess());
        const QString first = write(folder, u"open-20240229-120000-000-%1-a-b.htm"_s.arg(ended));
        const QString second = write(folder, u"open-20240301-130509-123-%1-New Document"_s.arg(ended));
        // The process with this id is another program.
        const QString third = write(folder, u"open-20240302-000000-000-1-c.css"_s);
        // Not offered: the copies of a running program, versions of files, and copies that were set aside.
        write(folder, u"open-20240302-000000-000-%1-mine.htm"_s.arg(QCoreApplication::applicationPid()));
        write(folder, u"disk-20240229-120000-000-%1-001-d.htm"_s.arg(ended));
        write(folder, u"kept-20240229-120000-000-%1-e.htm"_s.arg(ended));
        write(folder, u"open-"_s);
        write(folder, u"open-20240229-x.htm"_s);

        const QList<LeftCopy> copies = leftCopies(folder.path());
        QCOMPARE(copies.size(), 3);
        QCOMPARE(copies[0].path, third);
        QCOMPARE(copies[1],
                 (LeftCopy{second, u"New Document"_s,
                           QDateTime(QDate(2024, 3, 1), QTime(13, 5, 9, 123), Qt::UTC).toLocalTime()}));
        QCOMPARE(copies[2].path, first);
        QCOMPARE(copies[2].name, u"a-b.htm"_s);
        QCOMPARE(leftCopies(folder.path() + u"/none"_s), QList<LeftCopy>());
    }

    void aCopyIsPutAside()
    {
        const QTemporaryDir folder;
        write(folder, u"open-20240229-120000-000-1-open-a.htm"_s);
        const LeftCopy copy = leftCopies(folder.path()).value(0);
        QVERIFY(putAside(copy));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{u"kept-20240229-120000-000-1-open-a.htm"_s});
        QCOMPARE(leftCopies(folder.path()), QList<LeftCopy>());
        const Result<void> again = putAside(copy);
        QVERIFY(!again);
        QVERIFY2(again.error().sentence.contains(u"could not be saved"), qPrintable(again.error().sentence));
    }
};

ZEPHIRA_TEST(TstLeftCopies)
#include "tst_leftcopies.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/ftpsession.h"
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/crashreports.h"
#include "ftp/net/ftpserver.h"
#include "support/testregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTest>

#include <csignal>

using namespace zephira;
using namespace zephira::titles;
using namespace zephira::ftptitles;
using namespace Qt::StringLiterals;

namespace {

QByteArray toldOf(qint64 process, const QString &what)
{
    return ProgramFolder::read(u"/proc/%1/%2"_s.arg(process).arg(what));
}

/// The process and all those that it has started, directly or not.
QList<qint64> familyOf(qint64 process)
{
    QList<qint64> family{process};
    const QStringList all = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (qsizetype i = 0; i < family.size(); ++i) {
        for (const QString &other : all) {
            // The parent is the second word behind the name in brackets.
            const QByteArray status = toldOf(other.toLongLong(), u"stat"_s);
            const QList<QByteArray> words = status.mid(status.lastIndexOf(')') + 2).split(' ');
            if (words.value(1).toLongLong() == family[i])
                family.append(other.toLongLong());
        }
    }
    return family;
}

bool holds(const QByteArray &bytes, const QString &secret)
{
    const QByteArray wide(reinterpret_cast<const char *>(secret.utf16()), secret.size() * 2);
    return bytes.contains(secret.toUtf8()) || bytes.contains(wide);
}

/// What the system tells everybody, or the user, of processes: the places in which the secret is.
QStringList leaksOf(const QList<qint64> &processes, const QString &secret)
{
    QStringList leaks;
    for (const qint64 process : processes) {
        for (const QString &what : {u"cmdline"_s, u"environ"_s, u"comm"_s}) {
            if (holds(toldOf(process, what), secret))
                leaks.append(what + u" of "_s + QString::fromLocal8Bit(toldOf(process, u"comm"_s)));
        }
    }
    return leaks;
}

/// The files below a folder in which the secret is, or in whose names.
QStringList filesWith(const QString &folder, const QString &secret)
{
    QStringList files;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (holds(path.toUtf8(), secret) || (walk.fileInfo().isFile() && holds(ProgramFolder::read(path), secret)))
            files.append(path);
    }
    return files;
}

} // namespace

/// Passwords in the real program: where they may be, and where not.
class TstSecrets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// While a server makes a transfer wait, and after a crash.
    void aPasswordIsInItsProfileAlone()
    {
        const FtpServer server(FtpServer::Kind::Pyftpdlib);
        const QString password = server.password();
        server.addFile("from the server.bin", "content");
        const ProgramFolder folder;
        const QString page = folder.write(u"site/page.html"_s, "<p>text</p>");
        // The user may have asked for core files.
        FtpSession session(folder, page, {u"sh"_s, u"-c"_s, u"ulimit -S -c $(ulimit -H -c); exec \"$0\" \"$@\""_s});
        RunningProgram &program = session.program();
        const QString main = RunningProgram::captionOf(page);
        program.type(main, u"unsaved "_s);
        // The preview brings processes of its own.
        program.key(main, u"F8"_s);
        QTRY_VERIFY_WITH_TIMEOUT(familyOf(program.pid()).size() > 1, patience);

        session.saveProfile(server, password);
        session.connectByProfile();
        session.saveLog();
        program.key(ftpWindow, u"Tab Home Down Tab ctrl+a"_s);
        program.key(ftpWindow, u"alt+r d Return"_s);
        QVERIFY(program.waitForWindow(transfer));
        server.hold();
        program.key(transfer, u"Return"_s);
        QVERIFY(program.waitUntilIdle());
        const QString file = folder.path() + u"/from the server.bin"_s;
        const bool isDone = ProgramFolder::read(file) == "content";
        const QList<qint64> family = familyOf(program.pid());
        const QStringList leaks = leaksOf(family, password);
        const bool seesIt = holds(toldOf(program.pid(), u"environ"_s), folder.home());
        server.goOn();
        QVERIFY(!isDone);
        QVERIFY(seesIt);
        QVERIFY(family.size() > 1);
        QCOMPARE(leaks, QStringList());
        for (const qint64 process : family) {
            const QByteArray limits = toldOf(process, u"limits"_s).simplified();
            QVERIFY2(limits.contains("Max core file size 0 "), limits.constData());
        }
        program.answer(message, u"Return"_s);
        QVERIFY(program.waitUntilGone(transfer));
        QCOMPARE(ProgramFolder::read(file), "content");
        session.saveLog();

        QTRY_COMPARE_WITH_TIMEOUT(folder.recoveryCopies().size(), 1, patience);
        QCOMPARE(::kill(static_cast<pid_t>(program.pid()), SIGSEGV), 0);
        QCOMPARE(program.waitForEnd(), -1);
        QCOMPARE(crashReports(QFileInfo(folder.recoveryCopies().constFirst()).path()).size(), 1);
        QVERIFY(QFile::exists(session.savedLog()));
        QCOMPARE(filesWith(folder.place({}), password), QStringList{session.profile()});
        const QByteArray told = program.standardOutput() + program.standardError();
        QVERIFY2(!holds(told, password), told.constData());
    }
};

ZEPHIRA_TEST(TstSecrets)
#include "tst_secrets.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/ftpsession.h"
#include "e2e/programfolder.h"
#include "e2e/runningprogram.h"
#include "e2e/titles.h"
#include "files/iniconfiguration.h"
#include "ftp/net/ftpserver.h"
#include "support/testregistry.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace zephira;
using namespace zephira::titles;
using namespace zephira::ftptitles;
using namespace Qt::StringLiterals;

namespace {

/// Bytes of all values, in blocks that differ from each other.
QByteArray everyByte(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>((i * 7 + i / 256) & 0xff);
    return bytes;
}

/// Whether only the user may read and write the file (mode 0600).
bool isPrivate(const QString &path)
{
    const auto ofTheUser = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    return QFile::exists(path) && QFile::permissions(path) == ofTheUser;
}

} // namespace

/// The FTP window of the real program with a real server, driven by keys alone.
class TstFtp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The local list opens on the program's folder, which a server's file must not change unasked.
    void aDownloadOverTheProgramsOwnFileAsks()
    {
        const FtpServer server(FtpServer::Kind::Pyftpdlib);
        server.addFile("tags.dat", "theirs");
        const ProgramFolder folder;
        const QString tags = folder.path() + u"/tags.dat"_s;
        const QByteArray own = ProgramFolder::read(tags);
        QVERIFY(!own.isEmpty());
        FtpSession session(folder);
        RunningProgram &program = session.program();
        session.saveProfile(server, u"Secret word 9"_s);
        session.connectByProfile();
        program.key(ftpWindow, u"Tab Home Down Tab ctrl+a"_s);
        program.key(ftpWindow, u"alt+r d Return"_s);
        program.answer(message, u"alt+n"_s);
        QVERIFY(program.waitUntilGone(message));
        QCOMPARE(program.waitForWindows({untitled, ftpWindow}).size(), 2);
        QCOMPARE(ProgramFolder::read(tags), own);
        // The list's own menu has the same command.
        program.key(ftpWindow, u"shift+F10 d Return"_s);
        program.answer(message, u"alt+y"_s);
        session.runTransfer();
        QCOMPARE(ProgramFolder::read(tags), "theirs" + own.mid(6)); // The rest of a longer file stays.
        program.close(ftpWindow);
        QVERIFY(program.waitUntilGone(ftpWindow));
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
    }

    void filesGoBothWays_data()
    {
        QTest::addColumn<FtpServer::Kind>("kind");
        QTest::addColumn<QString>(
            "password"); // The password that the program proposes would not show whether the typed one is used.
        // The server can confine its users to a folder only if root starts it; otherwise the keys would have to
        // navigate the whole disk.
        if (geteuid() == 0)
            QTest::newRow("vsftpd") << FtpServer::Kind::Vsftpd << u"sEcret-77"_s;
        QTest::newRow("pyftpdlib") << FtpServer::Kind::Pyftpdlib << u"Secret word 9"_s;
    }

    void filesGoBothWays()
    {
        QFETCH(FtpServer::Kind, kind);
        QFETCH(QString, password);
        const FtpServer server(kind);
        const QByteArray down = everyByte(70'000);
        const QByteArray up = everyByte(50'001);
        server.addFile("from the server.bin", down);
        const ProgramFolder folder;
        folder.write(u"zephira/from here.up"_s, up);
        FtpSession session(folder);
        RunningProgram &program = session.program();

        session.saveProfile(server, password);
        QVERIFY(isPrivate(session.profile()));
        QCOMPARE(ReadIni(u"PROFIL"_s, u"sname"_s, session.profile()), u"Loopback"_s);
        QCOMPARE(ReadIni(u"PROFIL"_s, u"adresa"_s, session.profile()), server.host());
        QCOMPARE(ReadIni(u"PROFIL"_s, u"ID"_s, session.profile()), server.user());
        QCOMPARE(ReadIni(u"PROFIL"_s, u"pass"_s, session.profile()), password);
        QCOMPARE(ReadIni(u"PROFIL"_s, u"port"_s, session.profile()), QString::number(server.port()));
        session.connectByProfile();
        // The dialog is closed before the server has answered.
        session.saveLog();
        QVERIFY(ProgramFolder::read(session.savedLog()).contains(" > Connected to server.\r\n"));

        // From the local list to the tree's root and to the writable folder in it; then everything in the list, which
        // is one file.
        program.key(ftpWindow, u"Tab Home Down Tab ctrl+a"_s);
        program.key(ftpWindow, u"alt+r d Return"_s); // Two entries have this mnemonic.
        session.runTransfer();
        QCOMPARE(ProgramFolder::read(folder.path() + u"/from the server.bin"_s), down);

        program.key(ftpWindow, u"alt+l t d"_s);
        program.fillIn(u"Pattern"_s, u"*.up"_s);
        QVERIFY(program.waitUntilGone(u"Pattern"_s));
        program.key(ftpWindow, u"shift+Tab shift+Tab ctrl+a"_s);
        program.key(ftpWindow, u"alt+l u"_s);
        session.runTransfer();
        QCOMPARE(ProgramFolder::read(server.localFolder() + u"from here.up"_s), up);

        session.saveLog();
        QVERIFY(isPrivate(session.savedLog()));
        const QByteArray log = ProgramFolder::read(session.savedLog());
        for (const char *part :
             {" *** LOOPBACK ***\r\n", " > Connected to server.\r\n",
              "\r\n > Downloading from: /pub/from the server.bin, to: ", ", to: /pub/from here.up\r\n", " > OK\r\n"})
            QVERIFY2(log.contains(part), log.constData());
        QVERIFY2(!log.contains(password.toUtf8()), log.constData());
        const QByteArray told = program.standardOutput() + program.standardError();
        QVERIFY2(!told.contains(password.toUtf8()), told.constData());

        program.close(ftpWindow);
        QVERIFY(program.waitUntilGone(ftpWindow));
        program.close(untitled);
        QCOMPARE(program.waitForEnd(), 0);
    }
};

ZEPHIRA_TEST(TstFtp)
#include "tst_ftp.moc"

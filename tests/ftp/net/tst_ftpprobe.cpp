// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/ftpserver.h"
#include "ftp/net/scriptedserver.h"
#include "support/diskfiles.h"
#include "support/testregistry.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr int patience = 60'000;

struct Run {
    int status = -1;
    QByteArray output;
};

/// Runs the probe with unreachable proxies in its environment, which must not be used.
Run ftpprobe(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"ftp_proxy", "all_proxy", "ALL_PROXY"})
        environment.insert(QString::fromLatin1(name), u"http://127.0.0.1:1"_s);
    process.setProcessEnvironment(environment);
    process.start(QString::fromLocal8Bit(FTPPROBE), arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput()};
}

} // namespace

/// The program that external tests use: its exit status must never report a success that didn't happen.
class TstFtpProbe final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothWays()
    {
        const FtpServer server(FtpServer::Kind::Vsftpd);
        const auto run = [&](const QString &task, const QStringList &files) {
            return ftpprobe(QStringList{task, server.host(), QString::number(server.port())} + files);
        };
        const QTemporaryDir here;
        QFile local(here.filePath(u"a b.htm"_s));
        QVERIFY(local.open(QIODevice::WriteOnly) && local.write("hello") == 5);
        local.close();
        QCOMPARE(run(u"put"_s, {local.fileName(), server.folder() + u"c d.htm"_s}).status, 0);
        QCOMPARE(contentOf(server.localFolder() + u"c d.htm"_s), "hello"_ba);
        QCOMPARE(run(u"get"_s, {server.folder() + u"c d.htm"_s, here.path()}).status, 0);
        QCOMPARE(contentOf(here.filePath(u"c d.htm"_s)), "hello"_ba);

        const Run listed = run(u"list"_s, {server.folder() + u"*.htm"_s});
        QCOMPARE(listed.status, 0);
        QVERIFY(listed.output.startsWith("file\t5\t") && listed.output.endsWith("\tc d.htm\n"));

        QVERIFY(run(u"get"_s, {server.folder() + u"none"_s, here.path()}).status > 0);
        QVERIFY(!QFile::exists(here.filePath(u"none"_s)));
        QVERIFY(run(u"get"_s, {server.folder(), here.path()}).status > 0);
        QVERIFY(run(u"put"_s, {here.filePath(u"none"_s), server.folder() + u"e.htm"_s}).status > 0);
        QVERIFY(!QFile::exists(server.localFolder() + u"e.htm"_s));
        QVERIFY(run(u"put"_s, {local.fileName(), server.folder() + u"none/e.htm"_s}).status > 0);
    }

    void cutDownload()
    {
        const ScriptedServer server({{"RETR", [](ScriptedServer::Session &session, const QByteArray &) {
                                          session.reply("150 Here it comes");
                                          session.sendData(QByteArray(3000, 'x'));
                                          session.closeData();
                                          session.reply("426 Cut");
                                      }}});
        const QTemporaryDir here;
        QVERIFY(ftpprobe({u"get"_s, u"127.0.0.1"_s, QString::number(server.port()), u"/a.htm"_s, here.path()}).status
                > 0);
        QVERIFY(!QFile::exists(here.filePath(u"a.htm"_s)));
    }

    void fullDiskOnTheServer()
    {
        const ScriptedServer server({{"STOR", [](ScriptedServer::Session &session, const QByteArray &) {
                                          session.reply("150 Send");
                                          session.receiveData();
                                          session.reply("452 Full");
                                      }}});
        const QTemporaryDir here;
        QFile local(here.filePath(u"a.htm"_s));
        QVERIFY(local.open(QIODevice::WriteOnly) && local.write("hello") == 5);
        local.close();
        const QString port = QString::number(server.port());
        QVERIFY(ftpprobe({u"put"_s, u"127.0.0.1"_s, port, local.fileName(), u"/a.htm"_s}).status > 0);
    }

    void nobodyThere()
    {
        for (const char16_t *task : {u"get", u"put", u"list"})
            QVERIFY(ftpprobe({QString::fromUtf16(task), u"127.0.0.1"_s, u"1"_s, u"/a"_s, u"/b"_s}).status > 0);
    }
};

ZEPHIRA_TEST(TstFtpProbe)

#include "tst_ftpprobe.moc"

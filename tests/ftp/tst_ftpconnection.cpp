// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpclient.h"
#include "ftp/ftpconnection.h"
#include "ftp/recordingdesk.h"
#include "ftp/recordingoperations.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct Bench {
    ScriptedPrompts prompts;
    RecordingOperations operations;
    RecordingDesk desk;
    FtpClient client{operations};
    FtpConnection connection{client, desk, prompts};
    QString time = timeOfDay(desk.now);

    Bench()
    {
        client.session.ftpServer = u"ftp.example.com"_s;
        client.session.ftpUser = u"me"_s;
        client.session.ftpPassword = u"secret"_s;
        client.session.ftpPort = 21;
    }

    /// Connects. The desk's calls and the operations are recorded in one list, so that their order is known.
    bool connectToServer(const ConnectRequest &request = {u"My Site"_s, true, true})
    {
        return connection.connectToServer(request, [this] { operations.log.append(u"hide"_s); });
    }
};

} // namespace

class TstFtpConnection final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order();
    void flags_data();
    void flags();
    void port_data();
    void port();
    void loginFolder_data();
    void loginFolder();
    void serviceFails();
    void serverFails();
    void secondConnectionForgetsTheFirst();
    void transferType();
    void disconnect();
    void closeKeepsTheNumbers();
    void hangUp();
    void hangUpWithoutDialUp();
    void hangUpFails();
};

void TstFtpConnection::order()
{
    Bench bench;
    bench.client.session.ftpRemoteFolder = u"/old/"_s;
    QVERIFY(bench.connectToServer());
    QCOMPARE(bench.operations.log,
             (QStringList{u"InternetOpenA(\"My Site\", 1, \"\", \"\", 0x4000000)"_s, u"hide"_s,
                          u"InternetConnectA(1, \"ftp.example.com\", 21, \"me\", \"secret\", 1, 0x8000000, 0)"_s,
                          u"FtpGetCurrentDirectoryA(2, 260)"_s}));
    QCOMPARE(bench.desk.calls, (QStringList{u"addRemoteRoot"_s, u"List"_s}));
    QCOMPARE(bench.desk.panels[connectionPanel], u"Online"_s);
    QCOMPARE(bench.client.session.ftpRemoteFolder, u"/"_s);
    QVERIFY(bench.client.session.isConnected());
    QCOMPARE(bench.desk.logged,
             logText(LogEntry::Banner, bench.desk.now, {u"MY SITE"_s, u"ftp.example.com"_s}) + bench.time
                 + u" > Connected to service, looking for host.\r\n"_s + bench.time + u" > Connected to server.\r\n"_s);
    QVERIFY2(!bench.desk.logged.contains(u"secret"_s), "a password must not stand in the log");
}

void TstFtpConnection::flags_data()
{
    QTest::addColumn<bool>("binary");
    QTest::addColumn<bool>("passive");
    QTest::addColumn<QString>("flags");
    QTest::addColumn<int>("type");
    QTest::newRow("binary, passive") << true << true << u"0x8000000"_s << 2;
    QTest::newRow("binary, active") << true << false << u"0x20000000"_s << 2;
    QTest::newRow("ASCII, passive") << false << true << u"0x8000000"_s << 1;
    QTest::newRow("ASCII, active") << false << false << u"0x20000000"_s << 1;
}

void TstFtpConnection::flags()
{
    QFETCH(bool, binary);
    QFETCH(bool, passive);
    QFETCH(QString, flags);
    Bench bench;
    QVERIFY(bench.connectToServer({u"x"_s, binary, passive}));
    QCOMPARE(bench.operations.log[2],
             u"InternetConnectA(1, \"ftp.example.com\", 21, \"me\", \"secret\", 1, %1, 0)"_s.arg(flags));
    QTEST(static_cast<int>(bench.client.session.ftpTransferType), "type");
    QCOMPARE(bench.desk.binary, binary);
    QCOMPARE(bench.desk.passive, passive);
}

void TstFtpConnection::port_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("sent");
    QTest::newRow("web") << 80 << u"80"_s;
    QTest::newRow("largest") << 32767 << u"32767"_s;
    QTest::newRow("negative") << -1 << u"65535"_s;
}

void TstFtpConnection::port()
{
    QFETCH(int, port);
    QFETCH(QString, sent);
    Bench bench;
    bench.client.session.ftpPort = static_cast<qint16>(port);
    QVERIFY(bench.connectToServer());
    QVERIFY(bench.operations.log[2].startsWith(u"InternetConnectA(1, \"ftp.example.com\", %1, "_s.arg(sent)));
}

void TstFtpConnection::loginFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("searchPath");
    QTest::newRow("root") << u"/"_s << u"/*.*"_s;
    QTest::newRow("deeper") << u"/home/me"_s << u"/home/me/*.*"_s;
    QTest::newRow("with a slash") << u"/home/me/"_s << u"/home/me/*.*"_s;
    QTest::newRow("not told") << QString() << u"/*.*"_s;
}

void TstFtpConnection::loginFolder()
{
    QFETCH(QString, folder);
    Bench bench;
    bench.operations.loginFolder = folder;
    if (folder.isEmpty())
        bench.operations.failures[u"FtpGetCurrentDirectoryA"_s] = 1;
    QVERIFY(bench.connectToServer());
    QTEST(bench.client.session.ftpSearchPath, "searchPath");
    QCOMPARE(bench.client.session.ftpRemoteFolder, u"/"_s);
}

void TstFtpConnection::serviceFails()
{
    Bench bench;
    bench.operations.failures[u"InternetOpenA"_s] = 1;
    bench.prompts.expectTell(u"Connection to service failed!"_s, {}, Question::Icon::Exclamation);
    QVERIFY(!bench.connectToServer());
    QCOMPARE(bench.operations.log,
             (QStringList{u"InternetOpenA(\"My Site\", 1, \"\", \"\", 0x4000000)"_s, u"hide"_s,
                          u"InternetCloseHandle(0)"_s}));
    QCOMPARE(bench.desk.logged, u"Connection to service failed.\r\n"_s);
    QVERIFY(!bench.client.session.isConnected());
    QVERIFY(bench.desk.calls.isEmpty());
}

void TstFtpConnection::serverFails()
{
    Bench bench;
    bench.operations.failures[u"InternetConnectA"_s] = 1;
    bench.prompts.expectTell(u"Connection to server failed!"_s, {}, Question::Icon::Exclamation);
    QVERIFY(!bench.connectToServer());
    QCOMPARE(bench.operations.log.last(), u"InternetCloseHandle(1)"_s);
    QCOMPARE(bench.client.session.ftpOpenHandle, InternetHandle(1));
    QCOMPARE(bench.client.session.ftpConnectHandle, InternetHandle(0));
    QVERIFY(!bench.client.session.isConnected());
    QVERIFY(bench.desk.logged.endsWith(bench.time + u" > Connection to server failed.\r\n"_s));
    QVERIFY(!bench.desk.panels.contains(connectionPanel));
}

void TstFtpConnection::secondConnectionForgetsTheFirst()
{
    Bench bench;
    QVERIFY(bench.connectToServer());
    QVERIFY(bench.connectToServer());
    QCOMPARE(bench.client.session.ftpOpenHandle, InternetHandle(3));
    QCOMPARE(bench.client.session.ftpConnectHandle, InternetHandle(4));
    QVERIFY(bench.operations.log.filter(u"InternetCloseHandle"_s).isEmpty());
}

void TstFtpConnection::transferType()
{
    Bench bench;
    bench.connection.setTransferType(false);
    QCOMPARE(bench.client.session.ftpTransferType, 1);
    QVERIFY(!bench.desk.binary);
    bench.connection.setTransferType(true);
    QCOMPARE(bench.client.session.ftpTransferType, 2);
    QVERIFY(bench.desk.binary);
    QVERIFY(bench.operations.log.isEmpty());
}

void TstFtpConnection::disconnect()
{
    Bench bench;
    QVERIFY(bench.connectToServer());
    bench.operations.log.clear();
    bench.desk.logged.clear();
    bench.connection.disconnectFromServer();
    QCOMPARE(bench.operations.log, (QStringList{u"InternetCloseHandle(2)"_s, u"InternetCloseHandle(1)"_s}));
    QCOMPARE(bench.client.session.ftpOpenHandle, InternetHandle(0));
    QCOMPARE(bench.client.session.ftpConnectHandle, InternetHandle(0));
    QCOMPARE(bench.desk.logged, bench.time + u" > Server disconnected.\r\n"_s);
    QCOMPARE(bench.desk.panels[connectionPanel], u"Online"_s);
}

void TstFtpConnection::closeKeepsTheNumbers()
{
    Bench bench;
    QVERIFY(bench.connectToServer());
    bench.operations.log.clear();
    bench.connection.closeHandles();
    QCOMPARE(bench.operations.log, (QStringList{u"InternetCloseHandle(2)"_s, u"InternetCloseHandle(1)"_s}));
    QVERIFY(bench.client.session.isConnected());
}

void TstFtpConnection::hangUp()
{
    Bench bench;
    bench.operations.dialUp = {{412, 71, u"Work"_s}, {412, 72, u"Home"_s}};
    bench.prompts.expectTell(u"Ending connection: Work"_s);
    bench.prompts.expectTell(u"Ending connection: Home"_s);
    bench.connection.hangUp();
    QCOMPARE(bench.operations.log,
             (QStringList{u"RasEnumConnectionsA(412, 105472)"_s, u"RasHangUpA(71)"_s, u"RasHangUpA(72)"_s}));
}

void TstFtpConnection::hangUpWithoutDialUp()
{
    Bench bench;
    bench.operations.failures[u"RasEnumConnectionsA"_s] = 1;
    bench.connection.hangUp();
    QCOMPARE(bench.operations.log, QStringList{u"RasEnumConnectionsA(412, 105472)"_s});
}

void TstFtpConnection::hangUpFails()
{
    Bench bench;
    bench.operations.dialUp = {{412, 71, u"Work"_s}, {412, 72, u"Home"_s}};
    bench.operations.failures[u"RasHangUpA"_s] = 1;
    bench.prompts.expectTell(u"Ending connection: Home"_s);
    bench.connection.hangUp();
    QCOMPARE(bench.operations.log.size(), 3);
}

ZEPHIRA_TEST(TstFtpConnection)

#include "tst_ftpconnection.moc"

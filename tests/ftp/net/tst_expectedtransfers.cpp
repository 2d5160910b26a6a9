// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/netclient.h"
#include "ftp/net/scriptedserver.h"
#include "support/testregistry.h"

#include <QTest>

#include <functional>
#include <semaphore>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using namespace std::chrono_literals;
using Session = ScriptedServer::Session;

const auto host = u"127.0.0.1"_s;
const auto path = u"/a.htm"_s;

/// The commands at the start of every conversation.
const auto login = "USER PASS TYPE PWD FEAT "_ba;

/// Long enough for a busy machine; a passing test never waits this long.
constexpr auto patience = 60s;

/// With this limit a port that was requested in advance is used for up to a minute, so that it doesn't expire on a busy
/// machine.
constexpr auto longLimit = 30min;

void openPort(Session &session)
{
    session.reply("229 Here (|||" + QByteArray::number(session.openDataPort()) + "|)");
}

/// Answers the first EPSV correctly, and the later ones as the test says.
ScriptedServer::Handler onceWell(std::function<void(Session &session)> later)
{
    return [later, isFirst = true](Session &session, const QByteArray &) mutable {
        if (std::exchange(isFirst, false))
            openPort(session);
        else
            later(session);
    };
}

/// Answers PASV correctly.
void openPlainPort(Session &session, const QByteArray &)
{
    const quint16 port = session.openDataPort();
    session.reply("227 Here (127,0,0,1," + QByteArray::number(port / 256) + ',' + QByteArray::number(port % 256) + ")");
}

} // namespace

/// Transfers after which another one was announced: the port for that one is requested at their end. Whatever happens
/// to it, the results are the same as those of transfers without an announcement.
class TstExpectedTransfers final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nextPortIsAskedForAtTheEnd()
    {
        std::counting_semaphore asked(0);
        ScriptedServer server({{"EPSV", [&asked](Session &session, const QByteArray &) {
                                    openPort(session);
                                    asked.release();
                                }}});
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            QCOMPARE(read(client), "hello"_ba);
            // The second EPSV comes although no second transfer has begun.
            QVERIFY(asked.try_acquire_for(patience));
            QVERIFY(asked.try_acquire_for(patience));
            QVERIFY(client.put(path, "hello"));
            client.anotherFollows = false;
            QCOMPARE(read(client), "hello"_ba);
            QCOMPARE(read(client), "hello"_ba);
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV RETR EPSV STOR EPSV RETR EPSV RETR QUIT");
    }

    void replyOfThePortIsNoOther_data()
    {
        QTest::addColumn<QByteArray>("port");
        QTest::newRow("a port") << "229 Here (|||1|)"_ba;
        QTest::newRow("refused") << "425 Not now"_ba;
        QTest::newRow("of several lines") << "229-Wait\r\n229 Here (|||1|)"_ba;
    }

    void replyOfThePortIsNoOther()
    {
        QFETCH(QByteArray, port);
        // The server is slow, so that the reply is still under way when the next command is given.
        const auto replyLate = [port](Session &session) {
            std::this_thread::sleep_for(50ms);
            session.reply(port);
        };
        ScriptedServer server({{"EPSV", onceWell(replyLate)}, {"DELE", replying("550 No")}});
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            QCOMPARE(read(client), "hello"_ba);
            QVERIFY(!client.operations.FtpDeleteFileA(client.connection, path));
            QVERIFY(client.operations.FtpCreateDirectoryA(client.connection, path));
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV RETR EPSV DELE MKD QUIT");
    }

    void portOfNoUse_data()
    {
        QTest::addColumn<QByteArray>("port");
        QTest::addColumn<QByteArray>("last");
        QTest::newRow("no listener") << "229 Here (|||1|)"_ba
                                     << "EPSV PASV RETR"_ba;
        QTest::newRow("nonsense") << "229 Here"_ba
                                  << "EPSV PASV RETR"_ba;
        QTest::newRow("not now") << "425 Not now"_ba
                                 << "EPSV PASV RETR"_ba;
        QTest::newRow("not any more") << "500 What?"_ba
                                      << "PASV RETR"_ba;
    }

    void portOfNoUse()
    {
        QFETCH(QByteArray, port);
        QFETCH(QByteArray, last);
        ScriptedServer server(
            {{"EPSV", onceWell([port](Session &session) { session.reply(port); })}, {"PASV", openPlainPort}});
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            for (int i = 0; i < 3; ++i)
                QCOMPARE(read(client), "hello"_ba);
        }
        const QByteArray commands = verbs(server.commands());
        QVERIFY2(commands.startsWith(login + "EPSV RETR EPSV PASV RETR " + last), commands);
    }

    void oldPortIsNotUsed()
    {
        ScriptedServer server;
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            QCOMPARE(read(client), "hello"_ba);
            client.anotherFollows = false;
            // After a thirtieth of the usual limit the port has expired, and on a busy machine even more so.
            std::this_thread::sleep_for(NetOperations::usualLimit / 30 + 10ms);
            QCOMPARE(read(client), "hello"_ba);
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV RETR EPSV EPSV RETR QUIT");
    }

    void portThatNeverComes()
    {
        ScriptedServer server({{"EPSV", onceWell([](Session &session) { session.stall(); })}});
        NetClient client(1s);
        QVERIFY(client.connectTo(host, server.port()));
        client.anotherFollows = true;
        // The file itself has arrived, whatever the server does afterwards.
        QCOMPARE(read(client), "hello"_ba);
        QVERIFY(!client.operations.FtpDeleteFileA(client.connection, path));
        QVERIFY(!client.operations.FtpCreateDirectoryA(client.connection, path));
    }

    void nothingIsAskedBehindAFailure()
    {
        ScriptedServer server({{"RETR", [](Session &session, const QByteArray &) {
                                    session.reply("150 Here it comes");
                                    session.sendData("hel");
                                    session.closeData();
                                    session.reply("426 Cut");
                                }}});
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            bool ok = true;
            QCOMPARE(client.get(path, ok), "hel"_ba);
            QVERIFY(!ok);
            QVERIFY(client.operations.FtpDeleteFileA(client.connection, path));
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV RETR DELE QUIT");
    }

    void nothingIsAskedWithoutATransfer()
    {
        ScriptedServer server;
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.operations.expectTransfer(client.connection);
            client.operations.expectTransfer(client.open);
            client.operations.expectTransfer(0);
            QCOMPARE(read(client), "hello"_ba);
            QVERIFY(client.operations.FtpDeleteFileA(client.connection, path));
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV RETR DELE QUIT");
    }

    void olderPassiveServersAreNotAskedAhead()
    {
        ScriptedServer server({{"EPSV", replying("500 What?")}, {"PASV", openPlainPort}});
        {
            NetClient client(longLimit);
            QVERIFY(client.connectTo(host, server.port()));
            client.anotherFollows = true;
            QCOMPARE(read(client), "hello"_ba);
            QCOMPARE(read(client), "hello"_ba);
            QVERIFY(client.operations.FtpDeleteFileA(client.connection, path));
        }
        QCOMPARE(verbs(server.commands()), login + "EPSV PASV RETR PASV RETR DELE QUIT");
    }

private:
    /// The file, or what went wrong.
    static QByteArray read(NetClient &client)
    {
        bool ok = false;
        const QByteArray content = client.get(path, ok);
        return ok ? content : "failed behind " + content;
    }
};

ZEPHIRA_TEST(TstExpectedTransfers)

#include "tst_expectedtransfers.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/netclient.h"
#include "ftp/net/scriptedserver.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using namespace std::chrono_literals;
using Session = ScriptedServer::Session;
using Handlers = std::map<QByteArray, ScriptedServer::Handler>;

const auto host = u"127.0.0.1"_s;

/// Short, so that the tests don't wait long for a server that stays silent, but long enough for one that answers, even
/// on a busy machine.
constexpr auto shortLimit = 1s;

/// For tests in which nothing has to arrive in time.
constexpr auto briefLimit = 200ms;

/// No test takes this many milliseconds, however busy the machine: anything longer would be a wait without a limit.
constexpr qint64 endOfPatience = 25'000;

/// A way to misbehave in place of a reply.
struct Misbehaviour {
    const char *name;
    void (*act)(Session &session);
};

constexpr Misbehaviour misbehaviours[] = {
    {"stalls", [](Session &session) { session.stall(); }},
    {"drops", [](Session &session) { session.drop(); }},
    {"resets", [](Session &session) { session.reset(); }},
    {"talks nonsense",
     [](Session &session) {
         session.reply("GET / HTTP/1.0");
         session.stall();
     }},
    {"never ends its reply",
     [](Session &session) {
         for (int line = 0; line < 100'000; ++line)
             session.reply("299-and on");
         session.stall();
     }},
    {"never ends its line",
     [](Session &session) {
         session.reply("299-" + QByteArray(1'000'000, 'x'));
         session.stall();
     }},
};

ScriptedServer::Handler doing(void (*act)(Session &session))
{
    return [act](Session &session, const QByteArray &) { act(session); };
}

} // namespace

/// Servers that stall, drop connections, lie and worse. Nothing may hang, crash or report success.
class TstMisbehavingServer final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginFails_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<int>("misbehaviour");
        for (const char *command : {"", "USER", "PASS", "TYPE", "PWD", "FEAT"}) {
            for (int which = 0; which < static_cast<int>(std::size(misbehaviours)); ++which)
                QTest::addRow("%s %s", command, misbehaviours[which].name) << QByteArray(command) << which;
        }
    }

    void loginFails()
    {
        QFETCH(QByteArray, command);
        QFETCH(int, misbehaviour);
        QElapsedTimer timer;
        timer.start();
        ScriptedServer server({{command, doing(misbehaviours[misbehaviour].act)}});
        {
            NetClient client(briefLimit);
            QVERIFY(!client.connectTo(host, server.port()));
            QCOMPARE(client.list(u"/*.*"_s), QStringList());
        }
        server.commands();
        QVERIFY(timer.elapsed() < endOfPatience);
    }

    void refusedLogins_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("reply");
        QTest::newRow("at the greeting") << ""_ba
                                         << "421 Too many"_ba;
        QTest::newRow("the user") << "USER"_ba
                                  << "530 No"_ba;
        QTest::newRow("an account is wanted") << "USER"_ba
                                              << "332 Account?"_ba;
        QTest::newRow("the password") << "PASS"_ba
                                      << "530 No"_ba;
        QTest::newRow("an account after the password") << "PASS"_ba
                                                       << "332 Account?"_ba;
        QTest::newRow("binary transfers") << "TYPE"_ba
                                          << "504 No"_ba;
    }

    void refusedLogins()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, reply);
        const ScriptedServer server({{command, replying(reply)}});
        NetClient client;
        QVERIFY(!client.connectTo(host, server.port()));
    }

    void unusualLogins_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("folder");
        QTest::newRow("a long greeting") << ""_ba
                                         << "220-Hello\r\n530 is no end\r\n220 there"_ba << u"/"_s;
        QTest::newRow("a busy greeting") << ""_ba
                                         << "120 Soon\r\n220 Now"_ba << u"/"_s;
        QTest::newRow("no password wanted") << "USER"_ba
                                            << "230 Welcome"_ba << u"/"_s;
        QTest::newRow("no folder") << "PWD"_ba
                                   << "550 No"_ba << u"failed"_s;
        QTest::newRow("a deeper folder") << "PWD"_ba
                                         << "257 \"/home/me\" is it"_ba << u"/home/me"_s;
        QTest::newRow("a folder of 259 characters")
            << "PWD"_ba
            << "257 \"/" + QByteArray(258, 'x') + "\"" << u'/' + QString(258, u'x');
        QTest::newRow("a folder that doesn't fit") << "PWD"_ba
                                                   << "257 \"/" + QByteArray(259, 'x') + "\"" << u"failed"_s;
    }

    void unusualLogins()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, reply);
        const ScriptedServer server({{command, replying(reply)}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        QTEST(client.currentFolder(), "folder");
    }

    void commandFails_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<int>("misbehaviour");
        for (const char *command : {"CWD", "EPSV", "LIST", "RETR", "STOR", "DELE", "RNFR", "RNTO"}) {
            for (int which = 0; which < static_cast<int>(std::size(misbehaviours)); ++which)
                QTest::addRow("%s %s", command, misbehaviours[which].name) << QByteArray(command) << which;
        }
    }

    void commandFails()
    {
        QFETCH(QByteArray, command);
        QFETCH(int, misbehaviour);
        QElapsedTimer timer;
        timer.start();
        ScriptedServer server({{command, doing(misbehaviours[misbehaviour].act)}});
        {
            NetClient client(shortLimit);
            QVERIFY(client.connectTo(host, server.port()));
            bool ok = true;
            if (command == "CWD" || command == "EPSV" || command == "LIST")
                QCOMPARE(client.list(u"/*.*"_s), QStringList());
            else if (command == "RETR")
                QCOMPARE(client.get(u"/a.htm"_s, ok), QByteArray());
            else if (command == "STOR")
                QVERIFY(!client.put(u"/a.htm"_s, "hello"));
            else if (command == "DELE")
                QVERIFY(!client.operations.FtpDeleteFileA(client.connection, u"/a.htm"_s));
            else
                QVERIFY(!client.operations.FtpRenameFileA(client.connection, u"/a.htm"_s, u"/b.htm"_s));
            // The connection is lost and isn't silently restored.
            QVERIFY(!client.operations.FtpCreateDirectoryA(client.connection, u"/sub"_s));
            QCOMPARE(client.list(u"/*.*"_s), QStringList());
        }
        QCOMPARE(server.commands().count("USER anonymous"), 1);
        QVERIFY(timer.elapsed() < endOfPatience);
    }

    void downloadFails_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QByteArray>("content");
        int which = 0;
        for (const char *name : {"stalls in the middle", "drops in the middle", "resets the data", "resets it all",
                                 "says that it was cut", "says nothing at the end", "drops before the end's reply"})
            QTest::newRow(name) << which++ << QByteArray(3000, 'x');
    }

    void downloadFails()
    {
        QFETCH(int, which);
        QElapsedTimer timer;
        timer.start();
        constexpr void (*ends[])(Session &) = {
            [](Session &session) { session.stall(); },
            [](Session &session) {
                session.drop();
                session.closeData();
            },
            [](Session &session) {
                session.resetData();
                session.reply("426 Cut");
            },
            [](Session &session) {
                session.reset();
                session.resetData();
            },
            [](Session &session) {
                session.closeData();
                session.reply("426 Cut");
            },
            [](Session &session) {
                session.closeData();
                session.stall();
            },
            [](Session &session) {
                session.closeData();
                session.drop();
            },
        };
        const auto end = ends[which];
        ScriptedServer server({{"RETR", [end](Session &session, const QByteArray &) {
                                    session.reply("150 Here it comes (1000000 bytes)");
                                    session.sendData(QByteArray(3000, 'x'));
                                    end(session);
                                }}});
        {
            NetClient client(shortLimit);
            QVERIFY(client.connectTo(host, server.port()));
            bool ok = true;
            const QByteArray got = client.get(u"/a.htm"_s, ok);
            QVERIFY(!ok);
            // A reset may overtake data that was sent before it.
            QVERIFY(QByteArray(3000, 'x').startsWith(got));
        }
        QVERIFY(timer.elapsed() < endOfPatience);
    }

    void sizesThatLie()
    {
        const auto sending = [](const QByteArray &reply) {
            return [reply](Session &session, const QByteArray &) {
                session.reply(reply);
                session.sendData(QByteArray(3000, 'x'));
                session.closeData();
                session.reply("226 Done");
            };
        };
        for (const char *reply :
             {"150 Opening (0 bytes)", "150 Opening (17 bytes)", "150 Opening (99999999999999999999 bytes)"}) {
            const ScriptedServer server({{"RETR", sending(reply)}});
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            bool ok = false;
            QCOMPARE(client.get(u"/a.htm"_s, ok), QByteArray(3000, 'x'));
            QVERIFY(ok);
        }
    }

    void uploadFails_data()
    {
        QTest::addColumn<int>("which");
        int which = 0;
        for (const char *name :
             {"says that the disk is full at the end", "closes in the middle", "resets in the middle", "takes nothing",
              "says nothing at the end", "drops before the end's reply"})
            QTest::newRow(name) << which++;
    }

    void uploadFails()
    {
        QFETCH(int, which);
        QElapsedTimer timer;
        timer.start();
        constexpr void (*ends[])(Session &) = {
            [](Session &session) {
                session.receiveData();
                session.reply("452 Full");
            },
            [](Session &session) {
                session.sendData({});
                session.closeData();
                session.reply("452 Full");
            },
            [](Session &session) {
                session.sendData({});
                session.resetData();
                session.reply("426 Cut");
            },
            [](Session &session) {
                session.sendData({});
                session.stall();
            },
            [](Session &session) {
                session.receiveData();
                session.stall();
            },
            [](Session &session) {
                session.receiveData();
                session.drop();
            },
        };
        const auto end = ends[which];
        ScriptedServer server({{"STOR", [end](Session &session, const QByteArray &) {
                                    session.reply("150 Send");
                                    end(session);
                                }}});
        {
            NetClient client(shortLimit);
            QVERIFY(client.connectTo(host, server.port()));
            // More than the system buffers for a server that doesn't read.
            QVERIFY(!client.put(u"/a.htm"_s, QByteArray(30'000'000, 'x')));
        }
        QVERIFY(timer.elapsed() < endOfPatience);
    }

    void smallUploadOnAFullDisk()
    {
        const ScriptedServer server({{"STOR", [](Session &session, const QByteArray &) {
                                          session.reply("150 Send");
                                          session.receiveData();
                                          session.reply("452 Full");
                                      }}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        QVERIFY(!client.put(u"/a.htm"_s, "hello"));
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, u"/a.htm"_s));
    }

    void slowServerIsNoFailure()
    {
        // The whole transfer takes longer than the limit, but no single wait does.
        const ScriptedServer server({{"STOR", [](Session &session, const QByteArray &) {
                                          session.reply("150 Send");
                                          while (session.receivePiece(50'000) > 0)
                                              std::this_thread::sleep_for(200ms);
                                          session.reply("226 Done");
                                      }}});
        NetClient client(2s);
        QVERIFY(client.connectTo(host, server.port()));
        QVERIFY(client.put(u"/a.htm"_s, QByteArray(1'000'000, 'x')));
    }

    void passiveAnswersThatLie_data()
    {
        QTest::addColumn<QByteArray>("extended");
        QTest::addColumn<QByteArray>("passive");
        QTest::newRow("no port") << "229 Here (|||0|)"_ba
                                 << "227 Here (127,0,0,1,0,0)"_ba;
        QTest::newRow("a port without a listener") << "229 Here (|||1|)"_ba
                                                   << "227 Here (127,0,0,1,0,1)"_ba;
        QTest::newRow("nonsense") << "229 Here"_ba
                                  << "227 Here"_ba;
        QTest::newRow("refused") << "500 What?"_ba
                                 << "500 What?"_ba;
    }

    void passiveAnswersThatLie()
    {
        QFETCH(QByteArray, extended);
        QFETCH(QByteArray, passive);
        const ScriptedServer server({{"EPSV", replying(extended)}, {"PASV", replying(passive)}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        QCOMPARE(client.list(u"/*.*"_s), QStringList());
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, u"/a.htm"_s));
    }

    void passiveAddressIsTheServersOwn()
    {
        // The address in the reply belongs to an unreachable network.
        ScriptedServer server(
            {{"EPSV", replying("500 What?")}, {"PASV", [](Session &session, const QByteArray &) {
                                                   const quint16 port = session.openDataPort();
                                                   session.reply("227 Here (192,0,2,1," + QByteArray::number(port / 256)
                                                                 + ',' + QByteArray::number(port % 256) + ")");
                                               }}});
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            QCOMPARE(client.list(u"/*.*"_s), QStringList{u"file 5 a.htm"_s});
            QCOMPARE(client.list(u"/*.*"_s), QStringList{u"file 5 a.htm"_s});
        }
        // A command that the server doesn't know isn't sent twice.
        QCOMPARE(verbs(server.commands()), "USER PASS TYPE PWD FEAT CWD EPSV PASV LIST CWD PASV LIST QUIT"_ba);
    }

    void activeServerThatNeverConnects()
    {
        ScriptedServer server({{"EPRT", replying("200 Fine")}, {"LIST", [](Session &session, const QByteArray &) {
                                                                    session.reply("150 Here it comes");
                                                                    session.stall();
                                                                }}});
        NetClient client(shortLimit);
        QVERIFY(client.connectTo(host, server.port(), u"me"_s, u"secret"_s, INTERNET_FLAG_EXISTING_CONNECT));
        QCOMPARE(client.list(u"/*.*"_s), QStringList());
        QVERIFY(!client.operations.FtpDeleteFileA(client.connection, u"/a.htm"_s));
    }

    void listingForPrograms()
    {
        ScriptedServer server({{"FEAT", replying("211-Features:\r\n MLST type*;size*;\r\n UTF8\r\n211 End")},
                               {"OPTS", replying("200 Fine")},
                               {"MLSD", [](Session &session, const QByteArray &) {
                                    session.reply("150 Here it comes");
                                    session.sendData("type=file;size=7; m.htm\r\ntype=file;size=7; ../evil\r\n"
                                                     "type=dir; d\r\n");
                                    session.closeData();
                                    session.reply("226 Done");
                                }}});
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            QCOMPARE(client.list(u"/*.*"_s), (QStringList{u"file 7 m.htm"_s, u"folder d"_s}));
        }
        QCOMPARE(verbs(server.commands()), "USER PASS TYPE PWD FEAT OPTS CWD EPSV MLSD QUIT"_ba);
    }

    void announcedListingThatIsMissing()
    {
        const ScriptedServer server({{"FEAT", replying("211-Features:\r\n MLST\r\n211 End")}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        QCOMPARE(client.list(u"/*.*"_s), QStringList{u"file 5 a.htm"_s});
    }

    void strayRepliesAreNoReplies()
    {
        const ScriptedServer server({{"DELE", replying("550 No\r\n250 Yes")}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        for (int i = 0; i < 3; ++i)
            QVERIFY(!client.operations.FtpDeleteFileA(client.connection, u"/a.htm"_s));
    }

    void oneLoginAndFewCommands()
    {
        ScriptedServer server;
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port(), u"me"_s, u"secret"_s));
            bool ok = false;
            for (int i = 0; i < 3; ++i)
                QCOMPARE(client.get(u"/a.htm"_s, ok), "hello"_ba);
            QVERIFY(client.put(u"/b.htm"_s, "hello"));
            QVERIFY(client.operations.FtpRenameFileA(client.connection, u"/b.htm"_s, u"/c d.htm"_s));
        }
        QCOMPARE(server.commands(),
                 (QList<QByteArray>{"USER me", "PASS secret", "TYPE I", "PWD", "FEAT", "EPSV", "RETR /a.htm", "EPSV",
                                    "RETR /a.htm", "EPSV", "RETR /a.htm", "EPSV", "STOR /b.htm", "RNFR /b.htm",
                                    "RNTO /c d.htm", "QUIT"}));
    }

    void textsThatHoldCommands_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("CR LF") << u"a\r\nDELE /b"_s;
        QTest::newRow("CR") << u"a\rDELE /b"_s;
        QTest::newRow("LF") << u"a\nDELE /b"_s;
        QTest::newRow("NUL") << u"a"_s + QChar(u'\0') + u"b"_s;
    }

    void textsThatHoldCommands()
    {
        QFETCH(QString, text);
        ScriptedServer server;
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            NetOperations &operations = client.operations;
            const QString path = u'/' + text;
            QVERIFY(!operations.FtpSetCurrentDirectoryA(client.connection, path));
            QVERIFY(!operations.FtpCreateDirectoryA(client.connection, path));
            QVERIFY(!operations.FtpRemoveDirectoryA(client.connection, path));
            QVERIFY(!operations.FtpDeleteFileA(client.connection, path));
            QVERIFY(!operations.FtpRenameFileA(client.connection, path, u"/b"_s));
            QVERIFY(!operations.FtpRenameFileA(client.connection, u"/b"_s, path));
            QCOMPARE(operations.FtpOpenFileA(client.connection, path, GENERIC_READ, 2, 0), 0U);
            QCOMPARE(operations.FtpOpenFileA(client.connection, path, GENERIC_WRITE, 2, 0), 0U);
            QCOMPARE(client.list(path + u"/*.*"_s), QStringList());
        }
        QCOMPARE(verbs(server.commands()), "USER PASS TYPE PWD FEAT QUIT"_ba);
    }

    void loginsThatHoldCommands_data() { textsThatHoldCommands_data(); }

    void loginsThatHoldCommands()
    {
        QFETCH(QString, text);
        ScriptedServer server;
        NetClient client;
        QVERIFY(!client.connectTo(host, server.port(), text, u"secret"_s));
        QVERIFY(!client.connectTo(host, server.port(), u"me"_s, text));
        QVERIFY(!client.connectTo(host + text, server.port()));
        QCOMPARE(server.commands(), QList<QByteArray>());
    }

    void folderThatHoldsACommand()
    {
        ScriptedServer server({{"PWD", replying("257 \"/a\rDELE b\"")}});
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            QVERIFY(!client.operations.FtpDeleteFileA(client.connection, u"relative"_s));
        }
        QCOMPARE(verbs(server.commands()), "USER PASS TYPE PWD FEAT QUIT"_ba);
    }
};

ZEPHIRA_TEST(TstMisbehavingServer)

#include "tst_misbehavingserver.moc"

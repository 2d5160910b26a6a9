// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/netclient.h"
#include "ftp/net/scriptedserver.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const auto host = u"127.0.0.1"_s;

} // namespace

/// User names, passwords and file names, byte for byte as they are sent to a server and received from it.
class TstSentNames final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("ASCII") << u"index.htm"_s << "index.htm"_ba;
        QTest::newRow("Latin-1 has it too") << u"caf\u00e9"_s << "caf\xc3\xa9"_ba;
        QTest::newRow("Windows-1252 has it too") << u"\u20ac"_s << "\xe2\x82\xac"_ba;
        QTest::newRow("Czech") << u"\u017elu\u0165"_s << "\xc5\xbelu\xc5\xa5"_ba;
        QTest::newRow("Japanese") << u"\u65e5\u672c"_s << "\xe6\x97\xa5\xe6\x9c\xac"_ba;
        QTest::newRow("beyond 16 bits") << u"\U0001f600"_s << "\xf0\x9f\x98\x80"_ba;
        QTest::newRow("decomposed") << u"e\u0301"_s << "e\xcc\x81"_ba;
        QTest::newRow("right to left") << u"\u05d0\u05d1"_s << "\xd7\x90\xd7\x91"_ba;
        QTest::newRow("blanks") << u" a  b "_s << " a  b "_ba;
        QTest::newRow("signs") << u"a\"b'%41;#?*"_s << "a\"b'%41;#?*"_ba;
        // As the single byte of Latin-1 it would begin a Telnet command, because FTP is based on Telnet.
        QTest::newRow("y with two dots") << u"\u00ff"_s << "\xc3\xbf"_ba;
    }

    void usersAndPasswords_data() { texts_data(); }

    void usersAndPasswords()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        ScriptedServer server;
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port(), text, text));
        }
        const QList<QByteArray> commands = server.commands();
        QCOMPARE(commands.mid(0, 2), (QList<QByteArray>{"USER " + bytes, "PASS " + bytes}));
    }

    void filesAndFolders_data() { texts_data(); }

    void filesAndFolders()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        ScriptedServer server;
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            NetOperations &operations = client.operations;
            const QString path = u'/' + text;
            bool ok = false;
            QVERIFY(operations.FtpCreateDirectoryA(client.connection, path));
            QVERIFY(client.put(path, "hello"));
            QCOMPARE(client.get(path, ok), "hello"_ba);
            QVERIFY(operations.FtpRenameFileA(client.connection, path, path + u'2'));
            QVERIFY(operations.FtpDeleteFileA(client.connection, path));
            QVERIFY(operations.FtpRemoveDirectoryA(client.connection, path));
            QCOMPARE(client.list(path + u"/*.*"_s), QStringList{u"file 5 a.htm"_s});
            QVERIFY(operations.FtpSetCurrentDirectoryA(client.connection, path));
            QCOMPARE(client.currentFolder(), path);
        }
        const QByteArray path = '/' + bytes;
        QList<QByteArray> commands = server.commands().mid(5);
        commands.removeAll("EPSV");
        QCOMPARE(commands,
                 (QList<QByteArray>{"MKD " + path, "STOR " + path, "RETR " + path, "RNFR " + path, "RNTO " + path + '2',
                                    "DELE " + path, "RMD " + path, "CWD " + path, "LIST", "CWD " + path, "QUIT"}));
    }

    void listedNames_data()
    {
        texts_data();
        // Bytes that aren't UTF-8 are in an older encoding, and are sent back unchanged.
        QTest::newRow("Windows-1252") << u"caf\u00e9 \u20ac"_s << "caf\xe9 \x80"_ba;
    }

    void listedNames()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        ScriptedServer server({{"LIST", [bytes](ScriptedServer::Session &session, const QByteArray &) {
                                    session.reply("150 Here it comes");
                                    session.sendData("-rw-r--r-- 1 ftp ftp 5 Mar  5  2001 " + bytes + "\r\n");
                                    session.closeData();
                                    session.reply("226 Done");
                                }}});
        {
            NetClient client;
            QVERIFY(client.connectTo(host, server.port()));
            QCOMPARE(client.list(u"/*.*"_s), QStringList{u"file 5 "_s + text});
            bool ok = false;
            QCOMPARE(client.get(u'/' + text, ok), "hello"_ba);
        }
        QVERIFY(server.commands().contains("RETR /" + bytes));
    }

    void loginFolders_data() { texts_data(); }

    void loginFolders()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        const ScriptedServer server(
            {{"PWD", replying("257 \"/" + QByteArray(bytes).replace('"', "\"\"") + "\" is current")}});
        NetClient client;
        QVERIFY(client.connectTo(host, server.port()));
        QCOMPARE(client.currentFolder(), u'/' + text);
    }
};

ZEPHIRA_TEST(TstSentNames)

#include "tst_sentnames.moc"

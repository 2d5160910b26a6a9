// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/ftpserver.h"
#include "ftp/net/netclient.h"
#include "support/testregistry.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Bytes in which no two blocks are equal.
QByteArray contentOf(qsizetype size)
{
    QByteArray content(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : content) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    return content;
}

} // namespace

/// The operations against real servers.
class TstNetOperations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_servers[0] = std::make_unique<FtpServer>(FtpServer::Kind::Vsftpd);
        m_servers[1] = std::make_unique<FtpServer>(FtpServer::Kind::Pyftpdlib);
    }

    void cleanupTestCase()
    {
        for (auto &server : m_servers)
            server.reset();
    }

    void filesAndFolders_data() { serversAndModes(); }

    void filesAndFolders()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        const QString folder = server.folder() + QString::fromLatin1(QTest::currentDataTag());
        QCOMPARE(client.currentFolder(), server.loginFolder());
        QVERIFY(client.operations.FtpCreateDirectoryA(client.connection, folder));
        QVERIFY(!client.operations.FtpCreateDirectoryA(client.connection, folder));
        QCOMPARE(client.list(folder + u"/*.*"_s), QStringList());

        QVERIFY(client.put(folder + u"/a.htm"_s, "hello"));
        QVERIFY(client.put(folder + u"/b"_s, {}));
        QVERIFY(client.operations.FtpCreateDirectoryA(client.connection, folder + u"/sub"_s));
        QCOMPARE(client.list(folder + u"/*.*"_s), (QStringList{u"file 0 b"_s, u"file 5 a.htm"_s, u"folder sub"_s}));
        QCOMPARE(client.list(folder + u"/*.htm"_s), QStringList{u"file 5 a.htm"_s});
        QCOMPARE(client.list(folder + u"/s*"_s), QStringList{u"folder sub"_s});
        QCOMPARE(client.list(folder + u"/*.gif"_s), QStringList());

        bool ok = false;
        QVERIFY(client.put(folder + u"/a.htm"_s, "bye"));
        QCOMPARE(client.get(folder + u"/a.htm"_s, ok), "bye"_ba);
        QVERIFY(client.operations.FtpRenameFileA(client.connection, folder + u"/a.htm"_s, folder + u"/c.htm"_s));
        QVERIFY(!client.operations.FtpRenameFileA(client.connection, folder + u"/a.htm"_s, folder + u"/d.htm"_s));
        QVERIFY(!client.operations.FtpDeleteFileA(client.connection, folder + u"/a.htm"_s));
        QVERIFY(!client.operations.FtpRemoveDirectoryA(client.connection, folder));
        QCOMPARE(client.list(folder + u"/*.*"_s), (QStringList{u"file 0 b"_s, u"file 3 c.htm"_s, u"folder sub"_s}));

        QVERIFY(client.operations.FtpDeleteFileA(client.connection, folder + u"/b"_s));
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, folder + u"/c.htm"_s));
        QVERIFY(client.operations.FtpRemoveDirectoryA(client.connection, folder + u"/sub"_s));
        QVERIFY(client.operations.FtpRemoveDirectoryA(client.connection, folder));
        QVERIFY(!QDir(server.localFolder() + QString::fromLatin1(QTest::currentDataTag())).exists());
    }

    void blocks_data()
    {
        QTest::addColumn<int>("server");
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<int>("size");
        QTest::addColumn<QList<quint32>>("counts");
        forEachServerAndMode([](const QByteArray &name, int server, quint32 flags) {
            const auto row = [&](const char *what, int size, const QList<quint32> &counts) {
                QTest::newRow((name + ", " + what).constData()) << server << flags << size << counts;
            };
            row("empty", 0, {0});
            row("one byte", 1, {1});
            row("one short of a block", 1023, {1023});
            row("a block", 1024, {1024, 0});
            row("one more than a block", 1025, {1024, 1});
            row("two blocks", 2048, {1024, 1024, 0});
            row("more than a buffer", 300'000, QList<quint32>(292, 1024) + QList<quint32>{992});
        });
    }

    void blocks()
    {
        QFETCH(int, size);
        NetClient client;
        const FtpServer &server = connected(client);
        const QByteArray content = contentOf(size);
        QVERIFY(client.put(server.folder() + u"blocks.bin"_s, content));
        bool ok = false;
        QVERIFY(client.get(server.folder() + u"blocks.bin"_s, ok) == content);
        QVERIFY(ok);
        QTEST(client.counts, "counts");
        QFile stored(server.localFolder() + u"blocks.bin"_s);
        QVERIFY(stored.open(QIODevice::ReadOnly));
        QVERIFY(stored.readAll() == content);
    }

    void manyFilesInARow_data() { serversAndModes(); }

    void manyFilesInARow()
    {
        constexpr int count = 40;
        NetClient client;
        const FtpServer &server = connected(client);
        const QString path = server.folder() + u"row%1.bin"_s;
        client.anotherFollows = true;
        for (int i = 0; i < count; ++i)
            QVERIFY(client.put(path.arg(i), contentOf(i * 100)));
        bool ok = false;
        for (int i = 0; i < count; ++i) {
            QVERIFY(client.get(path.arg(i), ok) == contentOf(i * 100));
            QVERIFY(ok);
        }
        // The announced file isn't opened: everything else works as always, even if no such file exists.
        QCOMPARE(client.list(server.folder() + u"row*.bin"_s).size(), count);
        QVERIFY(client.get(path.arg(1), ok) == contentOf(100));
        QCOMPARE(client.get(path.arg(count), ok), QByteArray());
        QVERIFY(!ok);
        for (int i = 0; i < count; ++i) {
            QVERIFY(client.get(path.arg(i), ok) == contentOf(i * 100));
            QVERIFY(client.operations.FtpDeleteFileA(client.connection, path.arg(i)));
        }
        QVERIFY(!client.operations.FtpDeleteFileA(client.connection, path.arg(0)));
    }

    void names_data()
    {
        QTest::addColumn<int>("server");
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<QString>("name");
        forEachServerAndMode([](const QByteArray &mode, int server, quint32 flags) {
            for (const char16_t *name :
                 {u"a b  c.htm", u" begins with a blank", u"#1 100% a;type=a?b&c", u"žluťoučký 日本 😀.htm", u"a -> b",
                  u"-l", u"*[x]?{y}~", u"\"quoted\"", u"%41%2F", u"a..b"}) {
                const QString text = QString::fromUtf16(name);
                QTest::newRow((mode + ' ' + text.toUtf8()).constData()) << server << flags << text;
            }
        });
    }

    void names()
    {
        QFETCH(QString, name);
        NetClient client;
        const FtpServer &server = connected(client);
        // The folder has the same name.
        const QString folder = server.folder() + name;
        const QString path = folder + u'/' + name;
        QVERIFY(client.operations.FtpCreateDirectoryA(client.connection, folder));
        QVERIFY(client.put(path, "hello"));
        QCOMPARE(client.list(folder + u"/*.*"_s), QStringList{u"file 5 "_s + name});
        QVERIFY(client.list(server.folder() + u"*.*"_s).contains(u"folder "_s + name));
        bool ok = false;
        QCOMPARE(client.get(path, ok), "hello"_ba);
        QVERIFY(client.operations.FtpRenameFileA(client.connection, path, folder + u"/other"_s));
        QVERIFY(client.operations.FtpRenameFileA(client.connection, folder + u"/other"_s, path));
        QVERIFY(QFile::exists(server.localFolder() + name + u'/' + name));
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, path));
        QVERIFY(client.operations.FtpRemoveDirectoryA(client.connection, folder));
    }

    void namesOfOlderEncodings()
    {
        NetClient client;
        const FtpServer &server = *m_servers[0];
        QVERIFY(client.connectTo(server.host(), server.port()));
        server.addFile("caf\xe9.htm", "hello");
        QVERIFY(client.list(server.folder() + u"*.htm"_s).contains(u"file 5 café.htm"_s));
        bool ok = false;
        QCOMPARE(client.get(server.folder() + u"café.htm"_s, ok), "hello"_ba);
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, server.folder() + u"café.htm"_s));
    }

    void links_data() { serversAndModes(); }

    void links()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        const QString folder = server.localFolder() + u"links"_s;
        QVERIFY(QDir().mkpath(folder + u"/sub"_s));
        QFile file(folder + u"/a.htm"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QFile::link(u"sub"_s, folder + u"/to folder"_s);
        QFile::link(u"a.htm"_s, folder + u"/to file"_s);
        const QStringList found = client.list(server.folder() + u"links/to*"_s);
        QCOMPARE(found.size(), 2);
        QVERIFY(found[0].startsWith(u"file ") && found[0].endsWith(u" to file"));
        QCOMPARE(found[1], u"folder to folder"_s);
    }

    void times_data() { serversAndModes(); }

    void times()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        QFile file(server.localFolder() + u"old.htm"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.setFileTime(QDateTime(QDate(2001, 3, 5), QTime(0, 0), Qt::UTC), QFile::FileModificationTime));
        file.close();
        FindData entry;
        QVERIFY(client.operations.FtpFindFirstFileA(client.connection, server.folder() + u"old.htm"_s, entry, 0, 0)
                != 0);
        SystemTime time;
        QVERIFY(FileTimeToSystemTime(entry.lastWriteTime, time));
        QCOMPARE(time, (SystemTime{2001, 3, 5, 0, 0, 0}));
    }

    void currentFolderAndRelativePaths_data() { serversAndModes(); }

    void currentFolderAndRelativePaths()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        const QString folder = server.folder().chopped(1);
        QVERIFY(client.operations.FtpSetCurrentDirectoryA(client.connection, server.folder()));
        QCOMPARE(client.currentFolder(), folder);
        QVERIFY(client.put(u"relative.htm"_s, "hello"));
        QVERIFY(QFile::exists(server.localFolder() + u"relative.htm"_s));
        QCOMPARE(client.list(u"relat*"_s), QStringList{u"file 5 relative.htm"_s});
        QVERIFY(!client.operations.FtpSetCurrentDirectoryA(client.connection, server.folder() + u"none"_s));
        QCOMPARE(client.currentFolder(), folder);
        QString buffer(4, u' ');
        quint32 length = 4;
        QVERIFY(!client.operations.FtpGetCurrentDirectoryA(client.connection, buffer, length));
        QCOMPARE(buffer, u"    "_s);
        QCOMPARE(length, 4U);
    }

    void refusals_data() { serversAndModes(); }

    void refusals()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        const QString missing = server.folder() + u"none/none"_s;
        bool ok = true;
        QCOMPARE(client.get(missing, ok), QByteArray());
        QVERIFY(!ok);
        QVERIFY(!client.put(missing, "hello"));
        QCOMPARE(client.list(missing + u"/*.*"_s), QStringList());
        QCOMPARE(client.operations.FtpOpenFileA(client.connection, server.folder() + u"a"_s, 0, 2, 0), 0U);
        for (const QString &path : {QString(), missing}) {
            QVERIFY(!client.operations.FtpCreateDirectoryA(client.connection, path));
            QVERIFY(!client.operations.FtpRemoveDirectoryA(client.connection, path));
            QVERIFY(!client.operations.FtpDeleteFileA(client.connection, path));
            QVERIFY(!client.operations.FtpRenameFileA(client.connection, path, server.folder() + u"b"_s));
        }
        // The connection still works.
        QVERIFY(client.put(server.folder() + u"after.htm"_s, "hello"));
    }

    void oneFileAtATime_data() { serversAndModes(); }

    void oneFileAtATime()
    {
        NetClient client;
        const FtpServer &server = connected(client);
        const QString path = server.folder() + u"large.bin"_s;
        const QByteArray content = contentOf(20'000'000);
        QVERIFY(client.put(path, content));
        const InternetHandle file = client.operations.FtpOpenFileA(client.connection, path, GENERIC_READ, 2, 0);
        QVERIFY(file != 0);
        QCOMPARE(client.operations.FtpOpenFileA(client.connection, path, GENERIC_READ, 2, 0), 0U);
        QVERIFY(!client.operations.FtpDeleteFileA(client.connection, path));
        QCOMPARE(client.list(server.folder() + u"*.*"_s), QStringList());
        char block[NetClient::block];
        quint32 count = 0;
        QVERIFY(client.operations.InternetReadFile(file, block, NetClient::block, count));
        QCOMPARE(QByteArray(block, count), content.first(1024));
        QVERIFY(!client.operations.InternetWriteFile(file, block, NetClient::block, count));
        // A file that is closed long before its end leaves the connection usable.
        QVERIFY(client.operations.InternetCloseHandle(file));
        QVERIFY(!client.operations.InternetReadFile(file, block, NetClient::block, count));
        QCOMPARE(count, 0U);
        bool ok = false;
        QVERIFY(client.get(path, ok) == content);
        QVERIFY(client.operations.FtpDeleteFileA(client.connection, path));
    }

    void handles()
    {
        NetClient client;
        const FtpServer &server = *m_servers[1];
        NetOperations &operations = client.operations;
        QVERIFY(!operations.InternetCloseHandle(0));
        QVERIFY(!operations.InternetCloseHandle(77));
        QCOMPARE(operations.InternetConnectA(0, server.host(), server.port(), server.user(), server.password(),
                                             INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0),
                 0U);
        QVERIFY(client.connectTo(server.host(), server.port(), server.user(), server.password()));
        QCOMPARE(operations.InternetConnectA(client.open, server.host(), server.port(), server.user(),
                                             server.password(), 3, INTERNET_FLAG_PASSIVE, 0),
                 0U);

        QVERIFY(client.put(server.folder() + u"a.htm"_s, "hello"));
        QVERIFY(client.put(server.folder() + u"b.htm"_s, "hello"));
        FindData entry;
        const QString folder = server.folder();
        const InternetHandle find = operations.FtpFindFirstFileA(client.connection, folder + u"?.htm"_s, entry, 0, 0);
        const InternetHandle file =
            operations.FtpOpenFileA(client.connection, folder + u"a.htm"_s, GENERIC_READ, FTP_TRANSFER_TYPE_BINARY, 0);
        QVERIFY(find != 0 && file != 0);

        // Handles of another kind do nothing.
        quint32 count = 0;
        char block[NetClient::block];
        QVERIFY(!operations.FtpSetCurrentDirectoryA(client.open, server.folder()));
        QVERIFY(!operations.InternetFindNextFileA(client.connection, entry));
        QVERIFY(!operations.InternetReadFile(find, block, NetClient::block, count));
        QVERIFY(!operations.FtpDeleteFileA(file, server.folder() + u"a.htm"_s));

        // Closing a handle closes those that belong to it, and no number is used again.
        QVERIFY(operations.InternetCloseHandle(client.open));
        QVERIFY(!operations.InternetFindNextFileA(find, entry));
        QVERIFY(!operations.InternetReadFile(file, block, NetClient::block, count));
        QVERIFY(!operations.FtpCreateDirectoryA(client.connection, server.folder() + u"no"_s));
        QVERIFY(!operations.InternetCloseHandle(client.connection));
        QVERIFY(operations.InternetOpenA({}, 1, {}, {}, 0) > file);
    }

    void whoIsNotLetIn()
    {
        const FtpServer &server = *m_servers[1];
        NetClient client;
        QVERIFY(!client.connectTo(server.host(), server.port(), server.user(), u"wrong"_s));
        QVERIFY(!client.connectTo(server.host(), server.port(), u"nobody"_s, server.password()));
        QVERIFY(!client.connectTo(server.host(), server.port(), QString(), QString()));
        QVERIFY(!client.connectTo(server.host(), 1, server.user(), server.password()));
        QVERIFY(!client.connectTo(u"no-such-host.invalid"_s, server.port(), server.user(), server.password()));
        QVERIFY(!client.connectTo(QString(), server.port(), server.user(), server.password()));
        QVERIFY(!client.connectTo(u"a b"_s, server.port(), server.user(), server.password()));
        QVERIFY(client.connectTo(server.host(), server.port(), server.user(), server.password()));
    }

    void nobodyIsAnonymous()
    {
        const FtpServer &server = *m_servers[0];
        NetClient client;
        QVERIFY(client.connectTo(server.host(), server.port(), QString(), QString()));
    }

    void serverDies()
    {
        FtpServer server(FtpServer::Kind::Pyftpdlib);
        NetClient client;
        QVERIFY(client.connectTo(server.host(), server.port(), server.user(), server.password()));
        const QString path = server.folder() + u"large.bin"_s;
        QVERIFY(client.put(path, contentOf(20'000'000)));
        const InternetHandle file = client.operations.FtpOpenFileA(client.connection, path, GENERIC_READ, 2, 0);
        QVERIFY(file != 0);
        char block[NetClient::block];
        quint32 count = 0;
        QVERIFY(client.operations.InternetReadFile(file, block, NetClient::block, count));
        server.kill();
        int blocks = 1;
        while (client.operations.InternetReadFile(file, block, NetClient::block, count) && count == NetClient::block)
            ++blocks;
        QVERIFY(blocks < 20'000'000 / 1024);
        QVERIFY(!client.operations.InternetReadFile(file, block, NetClient::block, count));
        client.operations.InternetCloseHandle(file);
        QVERIFY(!client.put(server.folder() + u"b"_s, "hello"));
        QCOMPARE(client.list(server.folder() + u"*.*"_s), QStringList());
        QVERIFY(client.operations.InternetCloseHandle(client.connection));
    }

    void noDialUpConnections()
    {
        NetClient client;
        std::vector<RasConnection> connections(256);
        quint32 size = 256 * rasConnectionSize;
        quint32 count = 77;
        QCOMPARE(client.operations.RasEnumConnectionsA(connections, size, count), 0U);
        QCOMPARE(size, 0U);
        QCOMPARE(count, 0U);
        QVERIFY(client.operations.RasHangUpA(1) != 0);
    }

private:
    /// Calls `row` for both servers, each with passive and with active transfers.
    template<typename Row>
    static void forEachServerAndMode(Row row)
    {
        int server = 0;
        for (const char *name : {"vsftpd", "pyftpdlib"}) {
            row(QByteArray(name) + " passive", server, INTERNET_FLAG_PASSIVE);
            row(QByteArray(name) + " active", server, INTERNET_FLAG_EXISTING_CONNECT);
            ++server;
        }
    }

    static void serversAndModes()
    {
        QTest::addColumn<int>("server");
        QTest::addColumn<quint32>("flags");
        forEachServerAndMode([](const QByteArray &name, int server, quint32 flags) {
            QTest::newRow(name.constData()) << server << flags;
        });
    }

    /// Connects to the row's server in the row's mode. If that fails, so does the rest of the test.
    const FtpServer &connected(NetClient &client) const
    {
        QFETCH(int, server);
        QFETCH(quint32, flags);
        const FtpServer &to = *m_servers[server];
        client.connectTo(to.host(), to.port(), to.user(), to.password(), flags);
        return to;
    }

    std::unique_ptr<FtpServer> m_servers[2];
};

ZEPHIRA_TEST(TstNetOperations)

#include "tst_netoperations.moc"

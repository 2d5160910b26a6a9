// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/httpserver.h"
#include "support/testregistry.h"
#include "views/fetch/curlpagefetcher.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Fetching from a real local server.
class TstCurlPageFetcher final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fetches_data()
    {
        QTest::addColumn<QByteArray>("headers");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("charset");
        const QByteArray html("Content-Type: text/html\r\n");
        QTest::newRow("plain") << html << QByteArray("<p>\xE9") << QByteArray("<p>\xE9") << QString();
        QTest::newRow("with a character set") << QByteArray("content-type: text/html;charset=KOI8-R\r\n")
                                              << QByteArray("x") << QByteArray("x") << u"KOI8-R"_s;
        QTest::newRow("zeros") << html << QByteArray("a\0b", 3) << QByteArray("a\0b", 3) << QString();
        QTest::newRow("no content type") << QByteArray() << QByteArray("x") << QByteArray("x") << QString();
        QTest::newRow("compressed") << html + "Content-Encoding: gzip\r\n"
                                    << QByteArray::fromBase64("H4sIAAAAAAAAA7MpsMtIzcnJBwA2fmqVCAAAAA==")
                                    << QByteArray("<p>hello") << QString();
        QTest::newRow("large") << html << QByteArray(3'000'000, 'x') << QByteArray(3'000'000, 'x') << QString();
    }

    void fetches()
    {
        QFETCH(QByteArray, headers);
        QFETCH(QByteArray, body);
        HttpServer server;
        server.put(u"/page"_s, body, headers);
        const Result<FetchedPage> page = CurlPageFetcher().fetch(server.address(u"/page"_s));
        QVERIFY2(page.ok(), page ? "" : qPrintable(page.error().sentence));
        QTEST(page.value().bytes, "bytes");
        QTEST(page.value().charset, "charset");
    }

    void redirectsAreFollowed()
    {
        HttpServer server;
        server.putRaw(u"/old"_s, "HTTP/1.1 302 Found\r\nLocation: /newer\r\nContent-Length: 0\r\n\r\n");
        server.putRaw(u"/newer"_s,
                      "HTTP/1.1 301 Moved\r\nLocation: " + server.address(u"/new"_s).toLatin1()
                          + "\r\nContent-Length: 0\r\n\r\n");
        server.put(u"/new"_s, "here");
        const Result<FetchedPage> page = CurlPageFetcher().fetch(server.address(u"/old"_s));
        QVERIFY(page.ok());
        QCOMPARE(page.value().bytes, QByteArray("here"));
    }

    void failures_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("code");
        const auto row = [](const char *name, const QByteArray &answer, Error::Code code) {
            QTest::newRow(name) << answer << static_cast<int>(code);
        };
        row("not found", "HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\nnone", Error::Code::NotFound);
        row("server error", "HTTP/1.1 500 Oops\r\nContent-Length: 4\r\n\r\noops", Error::Code::NotFound);
        row("empty", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", Error::Code::NotFound);
        row("cut short", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nabc", Error::Code::Failed);
        row("no answer", {}, Error::Code::TimedOut);
        row("no server of this kind", "220 ready\r\n", Error::Code::Refused);
        row("to a file", "HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\nContent-Length: 0\r\n\r\n",
            Error::Code::Refused);
        row("round and round", "HTTP/1.1 302 Found\r\nLocation: /page\r\nContent-Length: 0\r\n\r\n",
            Error::Code::Failed);
        row("too large", "HTTP/1.1 200 OK\r\nContent-Length: 2000\r\n\r\n" + QByteArray(2000, 'x'),
            Error::Code::TooLarge);
        row("a bad compression", "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 3\r\n\r\nabc",
            Error::Code::Failed);
    }

    void failures()
    {
        QFETCH(QByteArray, answer);
        QFETCH(int, code);
        HttpServer server;
        server.putRaw(u"/page"_s, answer);
        CurlPageFetcher fetcher({.whole = std::chrono::milliseconds(1500), .bytes = 1000});
        const Result<FetchedPage> page = fetcher.fetch(server.address(u"/page"_s));
        QVERIFY(!page.ok());
        QCOMPARE(static_cast<int>(page.error().code), code);
        QVERIFY(!page.error().sentence.isEmpty());
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("the scheme alone") << u"http://"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("a port without a listener") << u"http://127.0.0.1:1/"_s;
        QTest::newRow("no address") << u"http://[::"_s;
        QTest::newRow("a scheme that is refused") << u"gopher://127.0.0.1/"_s;
    }

    void addresses()
    {
        QFETCH(QString, address);
        QVERIFY(!CurlPageFetcher().fetch(address).ok());
    }

    void aLocalFileIsRefused()
    {
        QTemporaryFile file;
        QVERIFY(file.open() && file.write("secret") == 6 && file.flush());
        const Result<FetchedPage> page = CurlPageFetcher().fetch(u"file://"_s + file.fileName());
        QVERIFY(!page.ok());
        QCOMPARE(page.error().code, Error::Code::Refused);
    }

    void aSchemeMayBeLeftOut()
    {
        HttpServer server;
        server.put(u"/page"_s, "here");
        QVERIFY(CurlPageFetcher().fetch(server.address(u"/page"_s).mid(7)).ok());
    }
};

ZEPHIRA_TEST(TstCurlPageFetcher)
#include "tst_curlpagefetcher.moc"

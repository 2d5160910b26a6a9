// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/localfiles.h"
#include "web/remoteaccess.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstRemoteAccess final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goingOut_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("page");
        QTest::addColumn<bool>("isLook");
        QTest::addColumn<bool>("isDesigner");
        QTest::addColumn<bool>("isLocal");
        QTest::addColumn<bool>("refused"); // What becomes of it before the permission, and after it.
        QTest::addColumn<bool>("allowed");
        const QString remote = u"https://example.org/a"_s;
        const QString file = u"file:///site/page.html"_s;
        QTest::newRow("browser, look") << remote << file << true << false << true << false << true;
        QTest::newRow("browser, other") << remote << file << false << false << true << false << true;
        QTest::newRow("browser, a frame's") << remote << u""_s << true << false << true << false << true;
        QTest::newRow("browser, a page given as text")
            << remote << u"data:text/html,x"_s << true << false << true << false << true;
        QTest::newRow("browser, a local page before it shows")
            << remote << file << true << false << false << false << true;
        QTest::newRow("browser, a remote page's")
            << remote << u"http://example.org/"_s << false << false << false << true << true;
        QTest::newRow("browser, a remote page's on its way")
            << remote << u"http://example.org/"_s << false << false << true << true << true;
        QTest::newRow("browser, a remote page's frame's") << remote << u""_s << false << false << false << true << true;
        QTest::newRow("browser, a socket")
            << u"wss://example.org/"_s << file << false << false << true << false << true;
        QTest::newRow("designer, look") << remote << file << true << true << true << false << true;
        QTest::newRow("designer, other") << remote << file << false << true << true << false << false;
        QTest::newRow("designer, whatever page")
            << remote << u"http://example.org/"_s << false << true << false << false << false;
        for (const char *near : {"file:///site/a.css", "data:text/css,x", "blob:x", "about:blank"})
            QTest::newRow(near) << QString::fromLatin1(near) << file << false << true << true << true << true;
    }

    void goingOut()
    {
        QFETCH(QString, address);
        QFETCH(QString, page);
        QFETCH(bool, isLook);
        QFETCH(bool, isDesigner);
        QFETCH(bool, isLocal);
        const RemoteRequest request{QUrl(address), QUrl(page), isLook ? RemoteKind::Look : RemoteKind::Other};
        const RemoteUse use = isDesigner ? RemoteUse::Designer : RemoteUse::Browser;
        QTEST(mayGoOut(request, use, isLocal, false), "refused");
        QTEST(mayGoOut(request, use, isLocal, true), "allowed");
    }

    void hosts_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("host");
        QTest::newRow("plain") << u"https://cdn.example.org/a.css"_s << u"cdn.example.org"_s;
        QTest::newRow("a port") << u"http://localhost:8080/a.css"_s << u"localhost:8080"_s;
        QTest::newRow("the usual port") << u"http://localhost:80/a.css"_s << u"localhost"_s;
        QTest::newRow("the usual port of the other") << u"https://localhost:80/"_s << u"localhost:80"_s;
        QTest::newRow("a user") << u"http://a:b@example.org/"_s << u"example.org"_s;
    }

    void hosts()
    {
        QFETCH(QString, address);
        QTEST(remoteHost(QUrl(address)), "host");
    }

    /// A local page counts as soon as it is asked for, a remote one only once it is shown.
    void localPages()
    {
        LocalFiles files;
        QVERIFY(files.isLocal());
        files.open(QUrl(u"http://example.org/"_s));
        QVERIFY(files.isLocal());
        files.shown(QUrl(u"http://example.org/"_s));
        QVERIFY(!files.isLocal());
        files.open(QUrl(u"http://example.org/b"_s));
        QVERIFY(!files.isLocal());
        files.open(QUrl(u"file:///site/page.html"_s));
        QVERIFY(files.isLocal());
        files.shown(QUrl(u"file:///site/page.html"_s));
        QVERIFY(files.isLocal());
        files.shown(QUrl(u"about:blank"_s));
        QVERIFY(files.isLocal());
    }
};

ZEPHIRA_TEST(TstRemoteAccess)
#include "tst_remoteaccess.moc"

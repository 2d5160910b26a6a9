// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/webviews.h"
#include "desktop/module.h"
#include "support/httpserver.h"
#include "support/testregistry.h"
#include "views/pagefetcher.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Loading a module, with the one that fetches pages as the example.
class TstModule final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModuleIsLoadedOnce()
    {
        const Result<PageFetcher *> fetcher = loadModuleAs<PageFetcher>(QStringLiteral(ZEPHIRA_FETCH_MODULE));
        QVERIFY2(fetcher.ok(), fetcher ? "" : qPrintable(fetcher.error().sentence));
        QVERIFY(fetcher.value() == loadModuleAs<PageFetcher>(QStringLiteral(ZEPHIRA_FETCH_MODULE)).value());
        HttpServer server;
        server.put(u"/page"_s, "here");
        const Result<FetchedPage> page = fetcher.value()->fetch(server.address(u"/page"_s));
        QVERIFY(page.ok());
        QCOMPARE(page.value().bytes, QByteArray("here"));
    }

    void failures_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("not there") << u"/nowhere/at/all.so"_s;
        QTest::newRow("not by its full path") << u"zephirafetch.so"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("a folder") << u"/tmp"_s;
    }

    void failures()
    {
        QFETCH(QString, file);
        const Result<QObject *> module = loadModule(file);
        QVERIFY(!module.ok());
        QVERIFY(!module.error().sentence.isEmpty());
    }

    void aFileThatIsNoModuleIsRefused()
    {
        QTemporaryFile file(u"XXXXXX.so"_s);
        QVERIFY(file.open() && file.write("no module") == 9 && file.flush());
        QVERIFY(!loadModule(QFileInfo(file).absoluteFilePath()).ok());
    }

    void aModuleOfAnotherKindIsRefused()
    {
        const Result<WebViews *> views = loadModuleAs<WebViews>(QStringLiteral(ZEPHIRA_FETCH_MODULE));
        QVERIFY(!views.ok());
        QCOMPARE(views.error().sentence,
                 u"The file %1 belongs to another version of the program."_s.arg(QStringLiteral(ZEPHIRA_FETCH_MODULE)));
    }
};

ZEPHIRA_TEST(TstModule)
#include "tst_module.moc"

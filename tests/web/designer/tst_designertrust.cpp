// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/diskfiles.h"
#include "support/hostilepage.h"
#include "support/httpserver.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QSignalSpy>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <QWebEngineView>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Pages that try to do more than being shown.
class TstDesignerTrust : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void scriptsDoNotRun_data();
    void scriptsDoNotRun();
    void staysWhereItIs_data();
    void staysWhereItIs();
    void readsOnlyBeneathItsFolder_data();
    void readsOnlyBeneathItsFolder();
    void readsBeneathTheProject();
    void nothingOfTheDesignerIsWithinReach();
    void aPageThatTriesEveryWayOut();

private:
    void settle();

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerTrust::scriptsDoNotRun_data()
{
    QTest::addColumn<QString>("page");
    const auto row = [](const char *name, const QString &page) { QTest::newRow(name) << page; };
    const QString harm = u"document.documentElement.id='harmed'"_s;
    row("inline", u"<body><script>%1</script>"_s.arg(harm));
    row("from a file", u"<body><script src=\"harm.js\"></script>"_s);
    row("from an address", u"<body><script src=\"data:text/javascript,%1\"></script>"_s.arg(harm));
    row("module", u"<body><script type=\"module\">%1</script>"_s.arg(harm));
    row("onload", u"<body onload=\"%1\">"_s.arg(harm));
    row("onerror", u"<body><img src=\"none.gif\" onerror=\"%1\">"_s.arg(harm));
    row("onfocus", u"<body><input autofocus onfocus=\"%1\">"_s.arg(harm));
    row("ontoggle", u"<body><details open ontoggle=\"%1\"></details>"_s.arg(harm));
    row("animation",
        u"<style>@keyframes a{}</style><p style=\"animation:a 1ms\" onanimationstart=\"%1\">x</p>"_s.arg(harm));
    row("drawing", u"<svg onload=\"%1\"><script>%1</script></svg>"_s.arg(harm));
    row("frame with a script", u"<iframe src=\"javascript:parent.%1\"></iframe>"_s.arg(harm));
    row("frame with a document", u"<iframe srcdoc=\"&lt;script&gt;parent.%1&lt;/script&gt;\"></iframe>"_s.arg(harm));
    row("object", u"<object data=\"javascript:%1\"></object><embed src=\"javascript:%1\">"_s.arg(harm));
    row("template of a worker",
        u"<link rel=\"preload\" as=\"script\" href=\"harm.js\"><script src=\"harm.js\" async></script>"_s);
    row("refresh to a script", u"<meta http-equiv=\"refresh\" content=\"0;javascript:%1\">"_s.arg(harm));
}

void TstDesignerTrust::scriptsDoNotRun()
{
    QFETCH(QString, page);
    m_bench->write(u"harm.js"_s, "document.documentElement.id='harmed'");
    m_bench->designer.loadDocument(m_bench->write(u"page.html"_s, page.toUtf8()));
    m_bench->awaitComplete();
    m_bench->ask(u"document.body?.click(); null"_s);
    // Anything that happens by itself has happened by the time a picture requested afterwards has failed to load.
    m_bench->ask(
        u"window.settled = 0; { const i = new Image(); i.onerror = () => setTimeout(() => window.settled = 1, 50);"
        "i.src = 'no-such-picture.gif'; } null"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"window.settled"_s).toInt(), 1, DesignerBench::patience);
    QCOMPARE(m_bench->ask(u"document.documentElement.id"_s).toString(), QString());
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), page);
}

void TstDesignerTrust::staysWhereItIs_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("action");
    const auto row = [](const char *name, const QString &page, const QString &action) {
        QTest::newRow(name) << page << action;
    };
    row("refresh", u"<meta http-equiv=\"refresh\" content=\"0;url=other.html\">a"_s, u""_s);
    row("link", u"<a href=\"other.html\">a</a>"_s, u"document.links[0].click()"_s);
    row("link of a script", u"<a href=\"javascript:document.title='harmed'\">a</a>"_s, u"document.links[0].click()"_s);
    row("link to a window", u"<a href=\"other.html\" target=\"_blank\">a</a>"_s, u"document.links[0].click()"_s);
    row("form", u"<form action=\"other.html\"><input name=\"a\"></form>"_s, u"document.forms[0].submit()"_s);
    row("form to a window", u"<form action=\"other.html\" target=\"_blank\"></form>"_s,
        u"document.forms[0].submit()"_s);
    row("frame", u"<iframe src=\"other.html\"></iframe>"_s, u""_s);
    row("frameset", u"<frameset cols=\"*,*\"><frame src=\"other.html\"><frame src=\"other.html\"></frameset>"_s, u""_s);
    row("base", u"<base href=\"other.html\" target=\"_top\"><a href=\"other.html\">a</a>"_s,
        u"document.links[0].click()"_s);
}

void TstDesignerTrust::staysWhereItIs()
{
    QFETCH(QString, page);
    QFETCH(QString, action);
    m_bench->write(u"other.html"_s, "<title>other</title><p>the other page</p>");
    m_bench->designer.loadDocument(m_bench->write(u"page.html"_s, page.toUtf8()));
    m_bench->awaitComplete();
    const QUrl address = m_bench->designer.page().url();
    QSignalSpy windows(&m_bench->designer.page(), &QWebEnginePage::newWindowRequested);
    QSignalSpy moves(&m_bench->designer.page(), &QWebEnginePage::urlChanged);
    m_bench->designer.setBrowseMode(true);
    m_bench->ask(action + u"; window.settled = 0; setTimeout(() => window.settled = 1, 100); null"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"window.settled"_s).toInt(), 1, DesignerBench::patience);
    m_bench->designer.setBrowseMode(false);
    QCOMPARE(m_bench->designer.page().url(), address);
    QCOMPARE(moves.count(), 0);
    QVERIFY(m_bench->designer.page().title() != u"other");
    QCOMPARE(m_bench
                 ->ask(u"[...document.querySelectorAll('iframe,frame')].filter(f => "
                       "f.contentDocument?.body?.textContent.includes('other')).length"_s)
                 .toInt(),
             0);
    QCOMPARE(m_bench->designer.documentHtml(), page);
}

void TstDesignerTrust::readsOnlyBeneathItsFolder_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("width");
    QTest::newRow("in its folder") << u"in.svg"_s << 30;
    QTest::newRow("below its folder") << u"sub/in.svg"_s << 30;
    QTest::newRow("next to its folder") << u"../out.svg"_s << 0;
    QTest::newRow("by a link that leads out") << u"link.svg"_s << 0;
}

/// The folder of the project takes the place of the page's own, if the page is in it.
void TstDesignerTrust::readsBeneathTheProject()
{
    m_bench->write(u"site/out.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'></svg>");
    m_bench->designer.setProjectFolder(m_bench->folder.path() + u"/site"_s);
    m_bench->designer.loadDocument(m_bench->write(u"site/sub/page.html"_s, "<img src=\"../out.svg\">"));
    m_bench->awaitComplete();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->ask(u"document.images[0].complete"_s).toBool(), DesignerBench::patience);
    QCOMPARE(m_bench->ask(u"document.images[0].naturalWidth"_s).toInt(), 30);
}

void TstDesignerTrust::readsOnlyBeneathItsFolder()
{
    QFETCH(QString, address);
    const QByteArray picture("<svg xmlns='http://www.w3.org/2000/svg' width='30' height='20'></svg>");
    m_bench->write(u"site/in.svg"_s, picture);
    m_bench->write(u"site/sub/in.svg"_s, picture);
    const QString outside = m_bench->write(u"out.svg"_s, picture);
    QFile::link(outside, m_bench->folder.path() + u"/site/link.svg"_s);
    m_bench->designer.loadDocument(m_bench->write(u"site/page.html"_s, "<img src=\"" + address.toUtf8() + "\">"));
    m_bench->awaitComplete();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->ask(u"document.images[0].complete"_s).toBool(), DesignerBench::patience);
    QTEST(m_bench->ask(u"document.images[0].naturalWidth"_s).toInt(), "width");
}

/// The page's own scripts can reach neither the designer's names nor the channel.
void TstDesignerTrust::nothingOfTheDesignerIsWithinReach()
{
    m_bench->load(u"<p>a</p>"_s);
    std::optional<QString> found;
    m_bench->designer.page().runJavaScript(u"[typeof zephiraDesigner, typeof QWebChannel, typeof qt].join()"_s,
                                           QWebEngineScript::MainWorld,
                                           [&](const QVariant &value) { found = value.toString(); });
    QTRY_VERIFY_WITH_TIMEOUT(found.has_value(), DesignerBench::patience);
    QCOMPARE(*found, u"undefined,undefined,undefined"_s);
}

/// Waits until what happens by itself, a while after a page has come, has happened.
void TstDesignerTrust::settle()
{
    m_bench->ask(u"window.settled = 0; setTimeout(() => window.settled = 1, 1500); null"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"window.settled"_s).toInt(), 1, DesignerBench::patience);
}

/// Before the user has allowed it, nothing of it reaches the server; afterwards only what decides about its look.
void TstDesignerTrust::aPageThatTriesEveryWayOut()
{
    const HttpServer server;
    const QString page = plantHostilePage(m_bench->folder.path() + u"/hostile"_s, server.address(u"/"_s));
    m_bench->designer.loadDocument(page);
    m_bench->awaitComplete();
    settle();
    QCOMPARE(server.connections(), 0);
    QCOMPARE(m_bench->ask(u"getComputedStyle(document.getElementById('p')).marginLeft"_s).toString(), u"0px"_s);
    QCOMPARE(m_bench->ask(u"[...document.images].filter(i => i.naturalWidth == 5).length"_s).toInt(), 0);
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml().replace(u"\r\n"_s, u"\n"_s).toUtf8(), contentOf(page));

    m_bench->designer.setRemoteAllowed(true);
    m_bench->designer.loadDocument(page);
    m_bench->awaitComplete();
    constexpr qsizetype fewestLooks = 5;
    QTRY_VERIFY_WITH_TIMEOUT(server.requests().size() >= fewestLooks, DesignerBench::patience);
    settle();
    m_bench->designer.setRemoteAllowed(false);
    const QStringList requests = server.requests();
    for (const QString &request : requests)
        QVERIFY2(request.contains(QRegularExpression(u"\\.(css|png|svg|woff|cur)$"_s)), qPrintable(request));
    QVERIFY(!requests.contains(u"/new.png"_s)); // A script asks for it.
}

ZEPHIRA_TEST(TstDesignerTrust)
#include "tst_designertrust.moc"

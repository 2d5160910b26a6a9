// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/diskfiles.h"
#include "support/eventwait.h"
#include "support/hostilepage.h"
#include "support/httpserver.h"
#include "support/testregistry.h"
#include "web/enginefeatures.h"
#include "web/live/livebench.h"
#include "widgets/scriptmessagebar.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstLivePageWidget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { closeUnfencedFeatures(); }
    void init() { m_bench = std::make_unique<LiveBench>(); }
    void cleanup() { m_bench.reset(); }

    void showsThePageOfItsFolder()
    {
        m_bench->write(u"look.css"_s, "p { color: rgb(1, 2, 3) }");
        QVERIFY(m_bench->show(u"<link rel=stylesheet href=look.css><p id=p>a"_s));
        QTRY_COMPARE(m_bench->ask(u"getComputedStyle(p).color"_s), u"rgb(1, 2, 3)"_s);
        QCOMPARE(m_bench->sheets, QStringList{m_bench->folder.path() + u"/look.css"_s});
        QVERIFY(!QFile::exists(m_bench->file));
    }

    void aPageWithoutAFile()
    {
        m_bench->file.clear();
        QVERIFY(m_bench->show(u"<p>a"_s));
        QVERIFY(m_bench->show(u"<p>ab"_s));
        QCOMPARE(m_bench->ask(u"document.body.textContent"_s), u"ab"_s);
    }

    void lettersOfAllKinds()
    {
        QVERIFY(m_bench->show(u"<meta charset=iso-8859-1><p>\u00e9\u05d0\U0001F600\u2028"_s));
        QVERIFY(m_bench->show(u"<meta charset=iso-8859-1><p>\u00e9\u05d0\U0001F600\u2028!"_s));
        QCOMPARE(m_bench->ask(u"document.body.textContent"_s), u"\u00e9\u05d0\U0001F600\u2028!"_s);
    }

    void anotherDocumentIsLoaded()
    {
        QVERIFY(m_bench->show(u"<p>a"_s));
        m_bench->file = m_bench->folder.path() + u"/other.html"_s;
        QVERIFY(m_bench->show(u"<p>b"_s));
        QCOMPARE(m_bench->live.loads(), 2);
    }

    void aClickTellsTheElement()
    {
        const QString html = u"<!DOCTYPE html>\r\n<p id=p>\u00e9 <b id=b>bold</b></p><a id=a href=other.html>link</a>"
                             "<input id=f value=field>"_s;
        QVERIFY(m_bench->show(html));
        m_bench->click(u"#b"_s);
        QTRY_COMPARE(m_bench->clicks.size(), 1U);
        QCOMPARE(m_bench->clicks[0], std::pair(html.indexOf(u"<b "), false));
        m_bench->click(u"#f"_s);
        QTRY_COMPARE(m_bench->clicks.size(), 2U);
        QCOMPARE(m_bench->clicks[1], std::pair(html.indexOf(u"<input"), true));
        m_bench->click(u"#a"_s);
        m_bench->click(u"#a"_s, Qt::MiddleButton);
        QTRY_COMPARE(m_bench->clicks.size(), 3U);
        // After a change the places are those of the new text.
        const QString longer = u"<!DOCTYPE html>\r\n<!-- longer --><p id=p>\u00e9 <b id=b>bold</b></p>"
                               "<a id=a href=other.html>link</a><input id=f value=field>"_s;
        QVERIFY(m_bench->show(longer));
        m_bench->click(u"#b"_s);
        QTRY_COMPARE(m_bench->clicks.size(), 4U);
        QCOMPARE(m_bench->clicks[3].first, longer.indexOf(u"<b "));
        QCOMPARE(m_bench->live.loads(), 1);
        QCOMPARE(m_bench->ask(u"document.querySelector('#f').value"_s), u"field"_s);
        // A script doesn't click in the user's name.
        m_bench->ask(u"document.querySelector('#b').click()"_s);
        QTest::qWait(100);
        QCOMPARE(m_bench->clicks.size(), 4U);
    }

    void theCaretsElementIsOutlined()
    {
        const QString html = u"<p id=p>a</p><div id=d><b id=b>b</b></div>"_s;
        const auto outlined = [&] {
            return m_bench->ask(u"[...document.querySelectorAll('*')].filter(e => getComputedStyle(e).outlineStyle === "
                                "'solid').map(e => e.id).join()"_s);
        };
        QVERIFY(m_bench->show(html));
        m_bench->live.showCaret({html.indexOf(u"<b "), html.indexOf(u"<div")}, true);
        QTRY_COMPARE(outlined(), u"b"_s);
        // A place that no element has any more.
        m_bench->live.showCaret({3, html.indexOf(u"<div")}, true);
        QTRY_COMPARE(outlined(), u"d"_s);
        QVERIFY(m_bench->show(u"<h1>new</h1>"_s + html));
        QCOMPARE(outlined(), u"d"_s);
        m_bench->live.showCaret({}, true);
        QTRY_COMPARE(outlined(), QString());
    }

    void theCaretsElementComesIntoSight()
    {
        const QString html = u"<p>a</p><div style='height: 3000px'></div><p id=p>b</p>"_s;
        QVERIFY(m_bench->show(html));
        m_bench->live.showCaret({html.indexOf(u"<p id=p")}, false);
        QTest::qWait(50);
        QCOMPARE(m_bench->ask(u"scrollY"_s), u"0"_s);
        m_bench->live.showCaret({html.indexOf(u"<p id=p")}, true);
        QTRY_VERIFY(m_bench->ask(u"scrollY"_s).toInt() > 2000);
        QTest::qWait(100);
        QCOMPARE(m_bench->scrolls.size(), 0U);
    }

    void scrollsWithTheText()
    {
        QString html = u"<!DOCTYPE html><style>p { height: 300px; margin: 0 } body { margin: 0 }</style>"_s;
        for (int i = 0; i < 10; ++i)
            html += u"<p>%1</p>\r\n"_s.arg(i);
        QVERIFY(m_bench->show(html));
        m_bench->live.follow(html.indexOf(u"<p>4"), false);
        QTRY_COMPARE(m_bench->ask(u"scrollY"_s), u"1200"_s);
        m_bench->live.follow(html.indexOf(u"<p>4"), true);
        QTRY_COMPARE(m_bench->ask(u"scrollY"_s), u"2600"_s);
        QTest::qWait(100);
        QCOMPARE(m_bench->scrolls.size(), 0U);
        m_bench->ask(u"scrollTo(0, 600)"_s);
        QTRY_COMPARE(m_bench->scrolls.size(), 1U);
        QCOMPARE(m_bench->scrolls[0], std::pair(html.indexOf(u"<p>2"), false));
        m_bench->ask(u"scrollTo(0, 9999)"_s);
        QTRY_COMPARE(m_bench->scrolls.size(), 2U);
        QVERIFY(m_bench->scrolls[1].second);
    }

    void lightAndDark()
    {
        m_bench->write(u"look.css"_s, "@media (prefers-color-scheme: dark) { p { color: rgb(1, 2, 3) } }");
        const QString html = u"<link rel=stylesheet href=look.css><style>"
                             "@media (prefers-color-scheme: light) { i { color: rgb(4, 5, 6) } }"
                             "@media screen and (prefers-color-scheme:dark) { i { color: rgb(7, 8, 9) } }</style>"
                             "<p id=p>a<i id=i>b</i>"_s;
        const auto colours = [&] {
            return m_bench->ask(u"getComputedStyle(p).color + getComputedStyle(i).color + "
                                "matchMedia('(prefers-color-scheme: dark)').matches"_s);
        };
        const auto set = [&](ColourScheme scheme) {
            const int before = m_bench->shown;
            m_bench->live.setColourScheme(scheme);
            return waitUntil([&] { return m_bench->shown > before; }, LiveBench::patience);
        };
        QVERIFY(m_bench->show(html));
        QVERIFY(set(ColourScheme::Dark));
        QTRY_COMPARE(colours(), u"rgb(1, 2, 3)rgb(7, 8, 9)true"_s);
        // What is typed while it is dark is dark as well.
        QVERIFY(m_bench->show(QString(html).replace(u"rgb(7, 8, 9)"_s, u"rgb(7, 8, 10)"_s)));
        QTRY_COMPARE(colours(), u"rgb(1, 2, 3)rgb(7, 8, 10)true"_s);
        QVERIFY(set(ColourScheme::Light));
        QTRY_COMPARE(colours(), u"rgb(0, 0, 0)rgb(4, 5, 6)false"_s);
    }

    /// A page that ends before it has answered tells nobody any more.
    void destroyedBeforeItAnswers()
    {
        const auto told = std::make_shared<int>(0);
        LivePageEvents events;
        events.shown = [told] { ++*told; };
        m_bench->live.setEvents(std::move(events));
        m_bench->live.setPatience(LiveBench::patience);
        m_bench->live.show(
            u"<title>t</title><script>addEventListener('load', () => setTimeout(() => { for (;;); }))</script>"_s,
            m_bench->file);
        QVERIFY(waitUntil([&] { return m_bench->live.view().title() == u"t"_s; }, LiveBench::patience));
        waitUntil([] { return false; }, 500);
        const int before = *told;
        m_bench.reset();
        QCOMPARE(*told, before);
    }

    void aSavedSheetIsFollowed()
    {
        m_bench->write(u"part.css"_s, "b { color: rgb(3, 0, 0) }");
        const QString sheet = m_bench->write(u"look 1.css"_s, "@import url(part.css); p { color: rgb(1, 0, 0) }");
        QVERIFY(m_bench->show(u"<link rel=stylesheet href='look 1.css'><p id=p>a<b id=b>b"_s));
        QTRY_COMPARE(m_bench->sheets.size(), 2);
        m_bench->ask(u"window.same = 1"_s);
        for (int i = 2; i < 4; ++i) {
            m_bench->write(u"look 1.css"_s,
                           "@import url(part.css); p { color: rgb(" + QByteArray::number(i) + ", 0, 0) }");
            m_bench->live.sheetSaved(sheet);
            QTRY_COMPARE(m_bench->ask(u"getComputedStyle(p).color"_s), u"rgb(%1, 0, 0)"_s.arg(i));
        }
        QCOMPARE(m_bench->ask(u"String(window.same)"_s), u"1"_s);
        // One that another one imports.
        const QString part = m_bench->write(u"part.css"_s, "b { color: rgb(4, 0, 0) }");
        m_bench->live.sheetSaved(part);
        QTRY_COMPARE(m_bench->ask(u"getComputedStyle(b).color"_s), u"rgb(4, 0, 0)"_s);
    }

    /// It is known only when it has been loaded, long after the text was taken over.
    void aSheetThatComesLate()
    {
        const QString part = m_bench->write(u"part.css"_s, "b { color: rgb(3, 0, 0) }");
        QVERIFY(m_bench->show(u"<img name=addEventListener><b id=b>b"_s));
        QVERIFY(m_bench->show(u"<img name=addEventListener><style>@import url(part.css)</style><b id=b>b"_s));
        QTRY_COMPARE(m_bench->sheets, QStringList(part));
        QCOMPARE(m_bench->live.loads(), 1);
    }

    void textsInARow()
    {
        QVERIFY(m_bench->show(u"<p>a"_s));
        for (int i = 0; i < 50; ++i)
            m_bench->live.show(u"<p>%1"_s.arg(i), m_bench->file);
        QTRY_COMPARE(m_bench->ask(u"document.body.textContent"_s), u"49"_s);
        QVERIFY(m_bench->shown < 20);
    }

    /// A page in an endless script is ended; the next text is shown.
    void anEndlessScript()
    {
        m_bench->live.setPatience(1000);
        m_bench->live.show(u"<p>a<script>for (;;);</script>"_s, m_bench->file);
        QVERIFY(waitUntil([&] { return m_bench->lost == 1; }, LiveBench::patience));
        QVERIFY(m_bench->show(u"<p>b"_s));
        QCOMPARE(m_bench->ask(u"document.body.textContent"_s), u"b"_s);
        // The same in a page that showed before.
        QVERIFY(m_bench->show(u"<p>b<script>setTimeout(() => { for (;;); }, 300)</script>"_s));
        QTest::qWait(500);
        m_bench->live.show(u"<p>c<script>setTimeout(() => { for (;;); }, 300)</script>"_s, m_bench->file);
        QVERIFY(waitUntil([&] { return m_bench->lost == 2; }, LiveBench::patience));
        QVERIFY(m_bench->show(u"<p>d"_s));
        QCOMPARE(m_bench->ask(u"document.body.textContent"_s), u"d"_s);
    }

    void scriptsThatFailOrLeave()
    {
        QVERIFY(
            m_bench->show(u"<p>a<script>throw 1</script><script>location = 'other.html'; open('x.html')</script>"_s));
        QTest::qWait(200);
        QVERIFY(
            m_bench->show(u"<p>b<script>throw 1</script><script>location = 'other.html'; open('x.html')</script>"_s));
        QCOMPARE(m_bench->ask(u"document.querySelector('p').firstChild.data"_s), u"b"_s);
    }

    /// Names of elements hide members of the document.
    void elementsWithNamesOfMembers()
    {
        const QString body = u"<form name=querySelectorAll></form><img name=documentElement><img name=body>"
                             "<img name=styleSheets><img name=adoptedStyleSheets><img name=importNode>"_s;
        QVERIFY(m_bench->show(body + u"<p id=p>a"_s));
        QVERIFY(m_bench->show(body + u"<h1>x</h1><p id=p>ab"_s));
        m_bench->live.showCaret({(body + u"<h1>x</h1>"_s).size()}, true);
        QTRY_COMPARE(m_bench->ask(u"getComputedStyle(p).outlineStyle"_s), u"solid"_s);
        QCOMPARE(m_bench->live.loads(), 1);
    }

    void messagesLeaveTheFocus()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *field = new QLineEdit(&window);
        layout->addWidget(field);
        layout->addWidget(&m_bench->live);
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        field->setFocus();
        m_bench->live.setPatience(500);
        auto *bar = m_bench->live.findChild<ScriptMessageBar *>();
        // The script waits in a loop of its own, in which the window lives on.
        bool stayed = false;
        QTimer answer;
        QTimer::singleShot(1500, &answer, [&] {
            stayed = bar->isVisible() && field->hasFocus() && m_bench->lost == 0;
            bar->findChild<QPushButton *>(u"ScriptMessageOk"_s)->click();
        });
        m_bench->live.show(u"<input autofocus><script>alert('a')</script>"_s, m_bench->file);
        QVERIFY(waitUntil([&] { return m_bench->shown == 1; }, LiveBench::patience));
        QVERIFY(stayed);
        QVERIFY(field->hasFocus());
        m_bench->live.setParent(nullptr);
    }

    void theFence()
    {
        HttpServer server;
        server.put(u"/a.js"_s, "window.a = 1", "Content-Type: text/javascript\r\n");
        const QString html = u"<script src='%1'></script><p>a"_s.arg(server.address(u"/a.js"_s));
        QVERIFY(m_bench->show(html));
        QTRY_COMPARE(m_bench->refused, QStringList{server.address({}).mid(7)});
        QCOMPARE(server.requests(), QStringList());
        m_bench->live.setRemoteAllowed(true);
        m_bench->live.reload();
        QTRY_COMPARE(m_bench->ask(u"String(window.a)"_s), u"1"_s);
        QCOMPARE(m_bench->refused, QStringList());
    }

    void everyWayOut()
    {
        const HttpServer server;
        m_bench->file = plantHostilePage(m_bench->folder.path(), server.address(u"/"_s));
        QVERIFY(m_bench->show(QString::fromUtf8(contentOf(m_bench->file))));
        QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"String(window.tried)"_s), u"true"_s, LiveBench::patience);
        QCOMPARE(m_bench->ask(u"window.got"_s), QString());
        QCOMPARE(m_bench->ask(u"String(window.spoken)"_s), QString());
        QCOMPARE(server.requests(), QStringList());
        QCOMPARE(server.connections(), 0);
        // Allowed to go out, the page does so in many ways, but reads nothing more.
        constexpr qsizetype fewestWays = 20;
        m_bench->live.setRemoteAllowed(true);
        m_bench->live.reload();
        QTRY_VERIFY_WITH_TIMEOUT(server.requests().size() >= fewestWays, LiveBench::patience);
        QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"String(window.tried)"_s), u"true"_s, LiveBench::patience);
        QCOMPARE(m_bench->ask(u"window.got"_s), QString());
    }

    /// A key in a page of 50 kB is seen soon.
    void speed()
    {
        const QString body =
            QString(u"<div class=row><h2>Title</h2><p>Some text with <b>bold</b> words.</p></div>\r\n"_s);
        const QString page = u"<!DOCTYPE html><html><body>"_s + body.repeated(650) + u"</body></html>"_s;
        QVERIFY(m_bench->show(page));
        std::vector<qint64> times;
        for (int i = 0; i < 15; ++i) {
            QString typed = page;
            typed.insert(typed.size() / 2 + i, u"x"_s);
            QElapsedTimer time;
            time.start();
            QVERIFY(m_bench->show(typed));
            times.push_back(time.elapsed());
        }
        std::ranges::sort(times);
        QVERIFY2(times[times.size() / 2] < 200, qPrintable(QString::number(times[times.size() / 2])));
        qInfo("an update of %d kB: %d ms", static_cast<int>(page.size() / 1000),
              static_cast<int>(times[times.size() / 2]));
    }

private:
    std::unique_ptr<LiveBench> m_bench;
};

ZEPHIRA_TEST(TstLivePageWidget)

#include "tst_livepagewidget.moc"

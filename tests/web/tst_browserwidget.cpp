// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/diskfilestore.h"
#include "support/diskfiles.h"
#include "support/eventwait.h"
#include "support/hostilepage.h"
#include "support/httpserver.h"
#include "support/testregistry.h"
#include "web/browserwidget.h"
#include "web/enginefeatures.h"
#include "widgets/scriptmessagebar.h"

#include <QCheckBox>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineView>

#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Time-out in milliseconds for showing a page, long enough for a busy machine.
constexpr int patience = 60000;

/// A visible browser, and a site below a temporary folder.
struct Bench {
    QTemporaryDir folder;
    DiskFileStore files;
    BrowserWidget browser{files};
    std::unique_ptr<QTimer> timer;

    Bench()
    {
        browser.resize(400, 300);
        browser.show();
    }

    QString write(const QString &name, const QByteArray &content) const
    {
        return putFile(folder.path() + u'/' + name, content);
    }

    QWebEnginePage &page() const { return *browser.findChild<QWebEngineView *>()->page(); }

    /// The result of a script in the page, as text.
    QString ask(const QString &script) const
    {
        std::optional<QString> answer;
        page().runJavaScript(script, [&](const QVariant &value) { answer = value.toString(); });
        waitUntil([&] { return answer.has_value(); }, patience);
        return answer.value_or(u"(no answer)"_s);
    }

    /// Waits until a script returns this text.
    bool comesTo(const QString &script, const QString &text) const
    {
        return waitUntil([&] { return ask(script) == text; }, patience);
    }

    ScriptMessageBar &messages() const { return *browser.findChild<ScriptMessageBar *>(); }
    template<typename Part>
    Part &part(const QString &name = {}) const
    {
        return *messages().findChild<Part *>(name);
    }
    void click(const QString &button) const { part<QPushButton>(button).click(); }
    /// Calls `act` for each message of the page. A test can't just wait, because the page waits for an answer.
    void onMessage(const std::function<void()> &act)
    {
        timer = std::make_unique<QTimer>();
        QObject::connect(timer.get(), &QTimer::timeout, &browser, [this, act] {
            if (messages().isVisible())
                act();
        });
        timer->start(10);
    }

    /// Navigates to a page and waits until it has loaded or failed; returns whether it has loaded.
    bool show(const QString &address)
    {
        QSignalSpy loaded(&page(), &QWebEnginePage::loadFinished);
        browser.navigate(address);
        return waitUntil([&] { return !loaded.isEmpty(); }, patience) && loaded.last().first().toBool();
    }
};

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
         walk.hasNext();)
        files.append(walk.next());
    files.sort();
    return files;
}

const QByteArray title("<!DOCTYPE html><title>t</title>");

} // namespace

/// The browser with the real engine: its functions, and what it denies to pages.
class TstBrowserWidget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { closeUnfencedFeatures(); }

    void aFileMayBeToldToBeAPage_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"a.vbs", "a.php", "a.cfm", "a b#1.inc", "a", "a.zip", "a.html"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void aFileMayBeToldToBeAPage()
    {
        QFETCH(QString, name);
        Bench bench;
        const QString path =
            bench.write(u"site/"_s + name, title + "<body><p>Grüße <b>1</b></p><script src=s.js></script>");
        bench.write(u"site/s.js"_s, "document.title = 'script beside it'");
        bench.browser.setHome(path, FileKind::Page);
        for (const auto go : {&BrowserWidget::goHome, &BrowserWidget::refresh}) {
            QSignalSpy loaded(&bench.page(), &QWebEnginePage::loadFinished);
            (bench.browser.*go)();
            QVERIFY(waitUntil([&] { return !loaded.isEmpty(); }, patience));
            QVERIFY(bench.comesTo(u"document.body.innerText"_s, u"Grüße 1"_s));
            QVERIFY(bench.comesTo(u"document.title"_s, u"script beside it"_s));
            QCOMPARE(bench.browser.locationUrl(), QUrl::fromLocalFile(path).toString());
        }
        bench.write(u"secret.js"_s, "document.title = 'secret'");
        bench.ask(u"var s = document.createElement('script'); s.src = '../secret.js'; "
                  "s.onerror = () => document.title = 'refused'; document.body.append(s); 1"_s);
        QVERIFY(bench.comesTo(u"document.title"_s, u"refused"_s));
        QVERIFY(bench.show(bench.write(u"site/other.html"_s, title)));
        bench.browser.setHome(path);
        QVERIFY(bench.show(bench.write(u"site/plain.txt"_s, "<b>x")));
        QCOMPARE(bench.ask(u"document.body.innerText"_s), u"<b>x"_s);
    }

    void scriptsSpeakAndAsk()
    {
        Bench bench;
        struct Look {
            bool input;
            bool cancel;
            bool noMore;

            bool operator==(const Look &) const = default;
        };
        std::vector<Look> looks;
        bench.onMessage([&] {
            looks.push_back({bench.part<QLineEdit>().isVisible(),
                             bench.part<QPushButton>(u"ScriptMessageCancel"_s).isVisible(),
                             bench.part<QCheckBox>().isVisible()});
            if (looks.back().input) {
                QCOMPARE(bench.part<QLineEdit>().text(), u"x"_s);
                bench.part<QLineEdit>().setText(u"typed"_s);
            }
            bench.click(looks.size() == 3 ? u"ScriptMessageCancel"_s : u"ScriptMessageOk"_s);
        });
        bench.browser.navigate(bench.write(
            u"page.html"_s,
            title
                + "<script>alert('one'); const a = confirm('two'), b = confirm('three'), c = prompt('four', 'x');"
                  "document.title = a + ' ' + b + ' ' + c</script>"));
        QVERIFY(bench.comesTo(u"document.title"_s, u"true false typed"_s));
        const std::vector<Look> expected{
            {false, false, false}, {false, true, true}, {false, true, true}, {true, true, true}};
        QVERIFY(looks == expected);
    }

    void noMoreMessages()
    {
        Bench bench;
        int messages = 0;
        bench.onMessage([&] {
            bench.part<QCheckBox>().setChecked(++messages == 2);
            bench.click(u"ScriptMessageOk"_s);
        });
        bench.browser.navigate(bench.write(
            u"page.html"_s, title + "<script>for (let i = 0; i < 50; ++i) alert(i); document.title = 'end'</script>"));
        QVERIFY(bench.comesTo(u"document.title"_s, u"end"_s));
        QCOMPARE(messages, 2);
        // After a navigation messages are shown again.
        bench.browser.navigate(
            bench.write(u"other.html"_s, title + "<script>alert('x'); document.title = 'other'</script>"));
        QVERIFY(bench.comesTo(u"document.title"_s, u"other"_s));
        QCOMPARE(messages, 3);
    }

    void aPageThatDoesNotLetGo_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("messages without an end") << QByteArray("for (;;) alert('x')");
        QTest::newRow("a script without an end") << QByteArray("for (;;);");
    }

    /// The next page is shown anyway, in a process of its own, and the old process is ended.
    void aPageThatDoesNotLetGo()
    {
        QFETCH(QByteArray, script);
        Bench bench;
        QVERIFY(bench.show(bench.write(u"page.html"_s, title)));
        const qint64 old = bench.page().renderProcessPid();
        int losses = 0;
        bench.browser.onProcessLost([&] { ++losses; });
        const QString next = bench.write(u"next.html"_s, "<!DOCTYPE html><title>next</title>");
        bool hasGone = false;
        const auto go = [&] {
            if (!std::exchange(hasGone, true))
                bench.browser.navigate(next);
        };
        bench.onMessage(go);
        bench.ask(u"setTimeout(() => { %1 }, 100); 1"_s.arg(QString::fromLatin1(script)));
        if (!script.contains("alert")) {
            QTest::qWait(500);
            go();
        }
        QVERIFY(waitUntil([&] { return bench.page().title() == u"next"; }, patience));
        QVERIFY(bench.page().renderProcessPid() != old);
        QVERIFY(waitUntil([&] { return ::kill(static_cast<pid_t>(old), 0) != 0; }, patience));
        QVERIFY(!bench.messages().isVisible());
        QCOMPARE(losses, 0);
    }

    void theLossOfAProcessIsTold()
    {
        Bench bench;
        QVERIFY(bench.show(bench.write(u"page.html"_s, title)));
        int losses = 0;
        bench.browser.onProcessLost([&] { ++losses; });
        ::kill(static_cast<pid_t>(bench.page().renderProcessPid()), SIGKILL);
        QVERIFY(waitUntil([&] { return losses == 1; }, patience));
    }

    void theProjectFolderIsOpenToItsPages_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("title");
        QTest::newRow("none") << QString() << u"refused"_s;
        QTest::newRow("the page's") << u"/site"_s << u"loaded"_s;
        QTest::newRow("another one") << u"/site/other"_s << u"refused"_s;
    }

    void theProjectFolderIsOpenToItsPages()
    {
        QFETCH(QString, project);
        Bench bench;
        bench.write(u"site/js/s.js"_s, "document.title = 'loaded'");
        bench.write(u"site/other/x.txt"_s, "x");
        bench.browser.setProjectFolder(project.isEmpty() ? project : bench.folder.path() + project);
        QVERIFY(
            bench.show(bench.write(u"site/pages/page.html"_s,
                                   title + "<script src=../js/s.js onerror=\"document.title='refused'\"></script>")));
        QTEST(bench.ask(u"document.title"_s), "title");
    }

    void aPageThatIsNotThereIsNamedAsSuch()
    {
        Bench bench;
        bench.write(u"site/page.html"_s, title);
        bench.show(bench.folder.path() + u"/site/miss ing#1.html"_s);
        QVERIFY(bench.comesTo(u"document.documentElement.outerHTML.includes('ERR_FILE_NOT_FOUND') + ''"_s, u"true"_s));
    }

    void aVeryLargeFileGoesByItsName()
    {
        Bench bench;
        const QString path = bench.write(u"large.txt"_s, title + QByteArray(700'000, 'x'));
        bench.browser.setHome(path, FileKind::Page);
        QVERIFY(bench.show(path));
        QVERIFY(bench.ask(u"document.body.innerText"_s).startsWith(u"<!DOCTYPE html>"_s));
    }

    void aLocalPageShows()
    {
        Bench bench;
        const QString path = bench.write(u"site/my page #1.html"_s, title + "<body><p>Grüße</p>");
        QSignalSpy complete(&bench.browser, &BrowserWidget::NavigateComplete);
        QVERIFY(bench.show(path));
        QVERIFY(!complete.isEmpty());
        QCOMPARE(bench.ask(u"document.body.innerText"_s), u"Grüße"_s);
        QCOMPARE(bench.browser.locationUrl(), QUrl::fromLocalFile(path).toString());
        QCOMPARE(bench.browser.property("LocationURL").toString(), bench.browser.locationUrl());
    }

    void historyAndHome()
    {
        Bench bench;
        const QString one = bench.write(u"site/one.html"_s, title + "one");
        const QString two = bench.write(u"site/two.html"_s, title + "two");
        bench.browser.goBack(); // Without a history nothing happens.
        QVERIFY(bench.show(one));
        QVERIFY(bench.show(two));
        const QString text = u"document.body.innerText"_s;
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "GoBack"));
        QVERIFY(bench.comesTo(text, u"one"_s));
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "GoForward"));
        QVERIFY(bench.comesTo(text, u"two"_s));
        bench.write(u"site/two.html"_s, title + "changed");
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "Refresh"));
        QVERIFY(bench.comesTo(text, u"changed"_s));
        bench.browser.setHome(one);
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "GoHome"));
        QVERIFY(bench.comesTo(text, u"one"_s));
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "Navigate", Q_ARG(QString, two)));
        QVERIFY(bench.comesTo(text, u"changed"_s));
    }

    void aPageThatNeverComesCanBeStopped()
    {
        HttpServer server;
        server.putSilence(u"/slow"_s);
        Bench bench;
        QSignalSpy loaded(&bench.page(), &QWebEnginePage::loadFinished);
        bench.browser.navigate(server.address(u"/slow"_s));
        QVERIFY(waitUntil([&] { return server.requests().contains(u"/slow"_s); }, patience));
        QVERIFY(QMetaObject::invokeMethod(&bench.browser, "Stop"));
        QVERIFY(waitUntil([&] { return !loaded.isEmpty(); }, patience));
        QVERIFY(!loaded.last().first().toBool());
    }

    void aChangedPartIsReadAnew()
    {
        Bench bench;
        bench.write(u"site/style.css"_s, "p { margin-left: 1px }");
        const QString page = bench.write(u"site/page.html"_s, title + "<link rel=stylesheet href=style.css><p id=p>x");
        const QString margin = u"getComputedStyle(document.getElementById('p')).marginLeft"_s;
        QVERIFY(bench.show(page));
        QCOMPARE(bench.ask(margin), u"1px"_s);
        bench.write(u"site/style.css"_s, "p { margin-left: 2px }");
        QVERIFY(bench.show(page));
        QCOMPARE(bench.ask(margin), u"2px"_s);
        QVERIFY(bench.show(u"about:blank"_s));
        bench.write(u"site/style.css"_s, "p { margin-left: 3px }");
        QVERIFY(bench.show(page));
        QCOMPARE(bench.ask(margin), u"3px"_s);
    }

    void ownFilesAreReadAndOthersAreNot_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("readable");
        QTest::newRow("beside") << u"own.js"_s << true;
        QTest::newRow("below") << u"sub/own.js"_s << true;
        QTest::newRow("above") << u"../secret/own.js"_s << false;
        QTest::newRow("above, encoded") << u"%2e%2e/secret/own.js"_s << false;
        QTest::newRow("above, by a full path") << u"FOLDER/secret/own.js"_s << false;
        QTest::newRow("by a link in the file system") << u"link.js"_s << false;
        QTest::newRow("by a linked folder") << u"out/own.js"_s << false;
    }

    /// For every way in which a page can request a file.
    void ownFilesAreReadAndOthersAreNot()
    {
        QFETCH(QString, file);
        QFETCH(bool, readable);
        Bench bench;
        for (const QString &place : {u"site"_s, u"site/sub"_s, u"secret"_s}) {
            bench.write(place + u"/own.js"_s, "window.came = 'yes';");
            bench.write(place + u"/own.css"_s, "p { margin-left: 7px }");
            bench.write(place + u"/own.html"_s, "<script>parent.postMessage('frame', '*')</script>");
            bench.write(place + u"/own.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='5' height='5'/>");
        }
        for (const char *kind : {"js", "css", "html", "svg"}) {
            const QString name = u"link."_s + QLatin1StringView(kind);
            QFile::link(bench.folder.path() + u"/secret/own."_s + QLatin1StringView(kind),
                        bench.folder.path() + u"/site/"_s + name);
        }
        QFile::link(bench.folder.path() + u"/secret"_s, bench.folder.path() + u"/site/out"_s);
        file.replace(u"FOLDER"_s, QUrl::fromLocalFile(bench.folder.path()).toString());
        const QString stem = file.chopped(2);
        const QString html =
            u"<!DOCTYPE html><link rel=stylesheet href='%1css'><p id=p>x</p><img id=i src='%1svg'>"
            "<script>window.frame = ''; onmessage = e => window.frame = e.data;</script>"
            "<script src='%1js'></script><iframe src='%1html'></iframe>"
            "<script>window.read = ''; const r = new XMLHttpRequest; r.open('GET', '%1js');"
            "r.onload = () => window.read = r.responseText ? 'yes' : 'empty'; r.onerror = () => window.read = 'no';"
            "try { r.send() } catch (e) { window.read = 'no' }</script>"_s.arg(stem);
        QVERIFY(bench.show(bench.write(u"site/page.html"_s, html.toUtf8())));
        QVERIFY(bench.comesTo(u"window.read ? 'done' : ''"_s, u"done"_s));
        QCOMPARE(bench.ask(u"window.came || 'no'"_s), readable ? u"yes"_s : u"no"_s);
        QCOMPARE(bench.ask(u"getComputedStyle(document.getElementById('p')).marginLeft"_s),
                 readable ? u"7px"_s : u"0px"_s);
        QCOMPARE(bench.ask(u"String(document.getElementById('i').naturalWidth)"_s), readable ? u"5"_s : u"0"_s);
        QCOMPARE(bench.ask(u"window.read"_s), readable ? u"yes"_s : u"no"_s);
        if (readable)
            QVERIFY(bench.comesTo(u"window.frame"_s, u"frame"_s));
        else
            QCOMPARE(bench.ask(u"window.frame"_s), QString());
    }

    void aPageCannotLeadOutOfItsFolder_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("by script") << u"<script>location = '../secret/own.html'</script>"_s;
        QTest::newRow("by itself") << u"<meta http-equiv=refresh content='0;url=../secret/own.html'>"_s;
        QTest::newRow("by a form")
            << u"<form action='../secret/own.html'></form><script>document.forms[0].submit()</script>"_s;
    }

    void aPageCannotLeadOutOfItsFolder()
    {
        QFETCH(QString, way);
        Bench bench;
        bench.write(u"secret/own.html"_s, title + "the secret");
        const QString page = bench.write(u"site/page.html"_s, QByteArray(title + "mine") + way.toUtf8());
        QSignalSpy loaded(&bench.page(), &QWebEnginePage::loadFinished);
        bench.browser.navigate(page);
        // The page itself has loaded, the refused one has failed.
        QVERIFY(waitUntil(
            [&] { return std::ranges::any_of(loaded, [](const QList<QVariant> &end) { return !end[0].toBool(); }); },
            patience));
        QVERIFY(!bench.ask(u"document.body.innerText"_s).contains(u"the secret"_s));
    }

    /// Nothing of it reaches the server or a file beyond the page's folder, and no file is written.
    void aPageThatTriesEveryWayOut()
    {
        HttpServer server;
        Bench bench;
        const QString page = plantHostilePage(bench.folder.path(), server.address(u"/"_s));
        const QStringList files = filesBelow(bench.folder.path());
        const QStringList downloads = filesBelow(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
        QVERIFY(bench.show(page));
        QVERIFY(bench.comesTo(u"String(window.tried)"_s, u"true"_s));
        QCOMPARE(bench.ask(u"window.got"_s), QString());
        QCOMPARE(bench.ask(u"String(window.spoken)"_s), QString());
        QCOMPARE(server.requests(), QStringList());
        QCOMPARE(server.connections(), 0);
        QCOMPARE(filesBelow(bench.folder.path()), files);
        QCOMPARE(filesBelow(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)), downloads);
        // Allowed to go out, the page does so in many ways, and in the end it leads elsewhere.
        constexpr qsizetype fewestWays = 20;
        server.put(u"/location"_s, "<title>elsewhere</title>");
        bench.browser.setRemoteAllowed(true);
        bench.browser.navigate(page);
        QVERIFY(waitUntil([&] { return server.requests().contains(u"/location"_s); }, patience));
        QVERIFY(server.requests().size() >= fewestWays);
        QCOMPARE(server.datagrams(), 0); // They would be for peers, which no page has.
    }

    /// Neither does it see what the engine has in their place.
    void noPageHasPeers()
    {
        const QString question = u"[typeof RTCPeerConnection, typeof webkitRTCPeerConnection].join()"_s;
        HttpServer server;
        server.put(u"/page"_s, title + "from elsewhere");
        Bench bench;
        const QString page = bench.write(u"page.html"_s, title + "mine");
        for (const QString &address : {page, server.address(u"/page"_s)}) {
            for (const bool isAllowed : {false, true}) {
                bench.browser.setRemoteAllowed(isAllowed);
                QVERIFY(bench.show(address));
                QCOMPARE(bench.ask(question), u"undefined,undefined"_s);
            }
        }
    }

    void aPageLeadsElsewhereOnlyWithTheUser_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("leads");
        QTest::newRow("a link") << u"<a href='SERVER'>go</a>"_s << true;
        QTest::newRow("a link to a new window") << u"<a href='SERVER' target=_blank>go</a>"_s << true;
        QTest::newRow("a button of a form") << u"<form action='SERVER'><button>go</button></form>"_s << true;
        QTest::newRow("a script") << u"<button onclick=\"location = 'SERVER'\">go</button>"_s << true;
        QTest::newRow("a script, much later")
            << u"<button onclick=\"setTimeout(() => location = 'SERVER', 2500)\">go</button>"_s << false;
    }

    /// A click leads from a page of this machine to another one, whose answers may be other addresses.
    void aPageLeadsElsewhereOnlyWithTheUser()
    {
        QFETCH(QString, way);
        QFETCH(bool, leads);
        HttpServer server;
        server.putRaw(u"/far"_s, "HTTP/1.1 302 Found\r\nLocation: /farther\r\nContent-Length: 0\r\n\r\n");
        server.putRaw(u"/far?"_s, "HTTP/1.1 302 Found\r\nLocation: /farther\r\nContent-Length: 0\r\n\r\n");
        server.put(u"/farther"_s, "<title>far</title>");
        Bench bench;
        QStringList refused;
        bench.browser.onRemoteRefused([&](const QStringList &hosts) { refused = hosts; });
        const QString markup = QString(way).replace(u"SERVER"_s, server.address(u"/far"_s));
        QVERIFY(bench.show(bench.write(
            u"page.html"_s,
            title + "<style>body{margin:0}a,button{display:block;width:99%;height:200px}</style>" + markup.toUtf8())));
        QTest::mouseClick(bench.browser.findChild<QWebEngineView *>()->focusProxy(), Qt::LeftButton, {}, {50, 50});
        if (leads) {
            QVERIFY(bench.comesTo(u"document.title"_s, u"far"_s));
            return;
        }
        const QStringList host{u"127.0.0.1:"_s + QString::number(server.port())};
        QVERIFY(waitUntil([&] { return refused == host; }, patience));
        QCOMPARE(bench.ask(u"document.title"_s), u"t"_s);
        QCOMPARE(server.connections(), 0);
        bench.browser.setRemoteAllowed(true);
        QTest::mouseClick(bench.browser.findChild<QWebEngineView *>()->focusProxy(), Qt::LeftButton, {}, {50, 50});
        QVERIFY(bench.comesTo(u"document.title"_s, u"far"_s));
    }

    /// The user goes back to a page from elsewhere; a page of this machine can't.
    void theHistoryIsTheUsers()
    {
        HttpServer server;
        server.put(u"/"_s, "<title>far</title>", "Content-Type: text/html\r\nCache-Control: no-store\r\n");
        Bench bench;
        QVERIFY(bench.show(server.address(u"/"_s)));
        QVERIFY(bench.show(bench.write(u"page.html"_s, title)));
        QCOMPARE(bench.ask(u"history.back(); setTimeout(() => document.title = 'stayed', 500); 1"_s), u"1"_s);
        QVERIFY(bench.comesTo(u"document.title"_s, u"stayed"_s));
        bench.browser.goBack();
        QVERIFY(bench.comesTo(u"document.title"_s, u"far"_s));
    }

    void aPageOfTheWebReadsNoLocalFile()
    {
        HttpServer server;
        Bench bench;
        const QString file =
            QUrl::fromLocalFile(bench.write(u"own.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='5'/>"))
                .toString();
        QVERIFY(bench.show(bench.write(u"page.html"_s, title))); // Its folder has been opened before.
        server.put(u"/"_s,
                   "<title>t</title><img id=i src='" + file.toUtf8() + "' onerror=\"document.title='refused'\">");
        QVERIFY(bench.show(server.address(u"/"_s)));
        QVERIFY(bench.comesTo(u"document.title"_s, u"refused"_s));
    }

    void windowsAreNotOpened()
    {
        Bench bench;
        bench.write(u"site/two.html"_s, title + "two");
        QVERIFY(bench.show(
            bench.write(u"site/page.html"_s, title + "<script>window.w = window.open('two.html')</script>one")));
        QCOMPARE(bench.ask(u"String(window.w)"_s), u"null"_s);
        QCOMPARE(bench.ask(u"document.body.innerText"_s), u"one"_s);
    }

    void aLinkToANewWindowOpensInPlace()
    {
        Bench bench;
        bench.write(u"site/two.html"_s, title + "<body>two");
        QVERIFY(bench.show(bench.write(
            u"site/page.html"_s,
            title
                + "<body style='margin:0'><a target=_blank href=two.html style='display:block;height:200px'>go</a>")));
        QTest::mouseClick(bench.browser.findChild<QWebEngineView *>()->focusProxy(), Qt::LeftButton, {}, {50, 50});
        QVERIFY(bench.comesTo(u"document.body.innerText"_s, u"two"_s));
    }

    void permissionsAreDenied()
    {
        HttpServer server;
        server.put(u"/"_s,
                   "<title>t</title><script>Notification.requestPermission().then(p => document.title = p)</script>");
        Bench bench;
        QVERIFY(bench.show(server.address(u"/"_s)));
        QVERIFY(bench.comesTo(u"document.title"_s, u"denied"_s));
    }

    void downloadsAreRefused()
    {
        HttpServer server;
        server.put(u"/file"_s, "x", "Content-Type: application/octet-stream\r\nContent-Disposition: attachment\r\n");
        server.put(
            u"/"_s,
            "<title>t</title><a id=a href=/file download>x</a><script>document.getElementById('a').click()</script>");
        Bench bench;
        QList<QWebEngineDownloadRequest::DownloadState> states;
        connect(bench.page().profile(), &QWebEngineProfile::downloadRequested, this,
                [&](QWebEngineDownloadRequest *download) { states.append(download->state()); });
        QVERIFY(bench.show(server.address(u"/"_s)));
        QTRY_COMPARE_WITH_TIMEOUT(states, QList{QWebEngineDownloadRequest::DownloadCancelled}, patience);
    }

    void nothingIsKeptOnTheDisk()
    {
        const DiskFileStore files;
        const BrowserWidget browser(files);
        QVERIFY(browser.findChild<QWebEngineView *>()->page()->profile()->isOffTheRecord());
    }
};

ZEPHIRA_TEST(TstBrowserWidget)
#include "tst_browserwidget.moc"

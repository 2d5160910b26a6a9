// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "document/document.h"
#include "support/eventwait.h"
#include "support/httpserver.h"
#include "support/testregistry.h"

#include <QApplication>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// Two hosts, and the window over a page that wants something of each.
struct RemoteBench : WebBench {
    HttpServer looks;
    HttpServer scripts;

    RemoteBench() : WebBench(QString())
    {
        looks.put(u"/s.css"_s, "p { color: rgb(1, 2, 3) }", "Content-Type: text/css\r\n");
        looks.put(u"/p.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
                  "Content-Type: image/svg+xml\r\n");
        looks.put(u"/frame.html"_s, "<p>frame</p>");
        scripts.put(u"/s.js"_s, "document.title = 'script ran';", "Content-Type: text/javascript\r\n");
    }

    QString scriptHost(const QString &path) const
    {
        return scripts.address(path).replace(u"127.0.0.1"_s, u"localhost"_s);
    }
    static QString hostOf(const QString &address) { return address.section(u'/', 2, 2); }

    void openPage(const QString &name)
    {
        const QString page =
            u"<!DOCTYPE html><html><head><title>local</title><link rel=\"stylesheet\" href=\"%1\"></head>"
            "<body><p>text</p><img src=\"%2\" alt=\"\"><iframe src=\"%3\"></iframe><script src=\"%4\"></script>"
            "<script>fetch('%4').catch(() => {}); new Image().src = '%2?by=script';</script></body></html>\r\n"_s;
        const QString path = write(name,
                                   page.arg(looks.address(u"/s.css"_s), looks.address(u"/p.svg"_s),
                                            looks.address(u"/frame.html"_s), scriptHost(u"/s.js"_s))
                                       .toUtf8());
        window->document().openFileOrImage(path);
    }

    QWidget &bar() const { return *find<QWidget>(u"remoteBar"_s); }
    QStringList requests() const { return looks.requests() + scripts.requests(); }
    /// Whether the preview shows the page and asks the user about its hosts, and no host got a request since `before`.
    bool asks(const QStringList &before)
    {
        const bool isAsked =
            preview(u"local"_s)
            && waitUntil(
                [&] {
                    const QString text = bar().isVisible() ? find<QLabel>(u"remoteText"_s)->text() : QString();
                    return text.contains(hostOf(looks.address({}))) && text.contains(hostOf(scriptHost({})));
                },
                patience);
        // Long enough for a request that wasn't refused to arrive.
        waitUntil([] { return false; }, 300);
        return isAsked && requests() == before;
    }
    void allow() const { find<QPushButton>(u"remoteAllow"_s)->click(); }
    bool showsAll() const { return showsPage(u"script ran"_s); }
};

} // namespace

/// What a page wants from other machines, which it gets when the user has allowed it.
class TstRemoteContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingBeforeTheClick();
    void permissionIsTheProjects();
    void theDesignerHasTheLooks();
    void notNow();
    void permissionIsTakenBack();
};

void TstRemoteContent::nothingBeforeTheClick()
{
    RemoteBench bench;
    bench.openPage(u"site/page.html"_s);
    bench.select(2);
    const QWidget *keyboard = QApplication::focusWidget();
    QVERIFY(bench.asks({}));
    QCOMPARE(QApplication::focusWidget(), keyboard);
    for (const char *name : {"remoteAllow", "remoteNotNow"})
        QCOMPARE(bench.find<QWidget>(QString::fromLatin1(name))->focusPolicy(), Qt::TabFocus);
    bench.allow();
    QVERIFY(bench.showsAll());
    QVERIFY(!bench.bar().isVisible());
    for (const char *path : {"/s.css", "/p.svg", "/frame.html"})
        QVERIFY2(bench.looks.requests().contains(QString::fromLatin1(path)), path);
    QVERIFY(bench.scripts.requests().contains(u"/s.js"_s));
}

void TstRemoteContent::permissionIsTheProjects()
{
    RemoteBench bench;
    bench.openPage(u"site/page.html"_s);
    QVERIFY(bench.asks({}));
    bench.allow();
    QVERIFY(bench.showsAll());
    // The same project after a restart.
    const QString page = bench.window->docPath();
    bench.window.reset();
    bench.start();
    bench.window->show();
    bench.window->document().openFileOrImage(page);
    bench.select(2);
    QVERIFY(bench.showsAll());
    QVERIFY(!bench.bar().isVisible());
    // Another page of it, and then one of another project.
    bench.select(1);
    bench.openPage(u"site/other.html"_s);
    bench.select(2);
    QVERIFY(bench.showsAll());
    bench.select(1);
    bench.openPage(u"elsewhere/page.html"_s);
    waitUntil([] { return false; }, 300); // The page before has had what it wanted.
    QVERIFY(bench.asks(bench.requests()));
}

void TstRemoteContent::theDesignerHasTheLooks()
{
    RemoteBench bench;
    bench.openPage(u"site/page.html"_s);
    QVERIFY(bench.design());
    waitUntil([] { return false; }, 300);
    QCOMPARE(bench.requests(), QStringList());
    QVERIFY(bench.asks({}));
    bench.allow();
    QVERIFY(bench.showsAll());
    bench.select(1);
    waitUntil([] { return false; }, 300);
    const qsizetype looks = bench.looks.requests().size();
    const qsizetype scripts = bench.scripts.requests().size();
    QVERIFY(bench.design());
    const auto later = [&] { return bench.looks.requests().mid(looks); };
    QVERIFY(
        waitUntil([&] { return later().contains(u"/s.css"_s) && later().contains(u"/p.svg"_s); }, WebBench::patience));
    waitUntil([] { return false; }, 300);
    QVERIFY(!later().contains(u"/frame.html"_s));
    QVERIFY(!later().contains(u"/p.svg?by=script"_s));
    QCOMPARE(bench.scripts.requests().size(), scripts);
}

void TstRemoteContent::notNow()
{
    RemoteBench bench;
    bench.openPage(u"site/page.html"_s);
    QVERIFY(bench.asks({}));
    bench.find<QPushButton>(u"remoteNotNow"_s)->click();
    QVERIFY(!bench.bar().isVisible());
    waitUntil([] { return false; }, 300);
    QCOMPARE(bench.requests(), QStringList());
    // It is asked for again with the next showing.
    bench.select(1);
    QVERIFY(bench.asks({}));
}

/// Where it was given, for all pages of the project, and for the designer.
void TstRemoteContent::permissionIsTakenBack()
{
    RemoteBench bench;
    bench.openPage(u"site/page.html"_s);
    QVERIFY(bench.asks({}));
    auto *forbid = bench.find<QPushButton>(u"remoteForbid"_s);
    QVERIFY(!forbid->isVisible());
    bench.allow();
    QVERIFY(bench.showsAll());
    QVERIFY(forbid->isVisible());
    waitUntil([] { return false; }, 300); // The page has had what it wanted.
    const QStringList before = bench.requests();
    forbid->click();
    QVERIFY(bench.showsPage(u"local"_s));
    QVERIFY(bench.asks(before));
    QVERIFY(!forbid->isVisible());
    bench.select(1);
    QVERIFY(bench.design());
    waitUntil([] { return false; }, 300);
    QCOMPARE(bench.requests(), before);
    bench.select(1);
    bench.openPage(u"site/other.html"_s);
    QVERIFY(bench.asks(before));
    // And given again.
    bench.allow();
    QVERIFY(bench.showsAll());
    QVERIFY(forbid->isVisible());
}

ZEPHIRA_TEST(TstRemoteContent)
#include "tst_remotecontent.moc"

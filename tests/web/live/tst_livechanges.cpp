// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "web/live/livebench.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QString page(const QString &body)
{
    return u"<!DOCTYPE html>\r\n<html><head><title>t</title></head>\r\n<body>"_s + body + u"</body></html>"_s;
}

} // namespace

/// What the live page does when its source changes.
class TstLiveChanges final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<LiveBench>(); }
    void cleanup() { m_bench.reset(); }

    /// Whatever is changed, the page is then the one that a new load would show.
    void becomesTheSource_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const auto row = [](const char *what, const QString &before, const QString &after) {
            QTest::newRow(what) << before << after;
        };
        row("a letter", u"<p>a</p>"_s, u"<p>ab</p>"_s);
        row("an attribute", u"<p class=a title=b>"_s, u"<p class=c id=d>"_s);
        row("a new element", u"<p>a<p>b"_s, u"<p>a<p>new<p>b"_s);
        row("a lost element", u"<p>a<p>new<p>b"_s, u"<p>a<p>b"_s);
        row("another element", u"<p>a<b>c</b></p>"_s, u"<p>a<i>c</i></p>"_s);
        row("turned round", u"<p>a<p>b<p>c"_s, u"<p>c<p>b<p>a"_s);
        row("nested otherwise", u"<div><p>a</div><p>b"_s, u"<div><div><p>a</div><p>b"_s);
        row("a half-typed tag", u"<p>a</p><p>b</p>"_s, u"<p>a</p><d<p>b</p>"_s);
        row("everything gone", u"<p>a<p>b"_s, {});
        row("everything new", {}, u"<p>a<table><tr><td>b</table>"_s);
        row("a table", u"<table><tr><td>a</table>"_s, u"<table>x<tr><td>a<tr><td>b</table>"_s);
        row("a comment", u"<!-- a --><p>"_s, u"<!-- b --><p>"_s);
        row("a drawing", u"<svg><circle r=1 /></svg>"_s, u"<svg viewBox='0 0 1 1'><rect/><circle r=2 /></svg>"_s);
        row("content without scripts", u"<noscript><p>a</noscript><p>b"_s, u"<noscript><p>a</noscript><p>c"_s);
        row("a look", u"<style>p { color: red }</style><p>a"_s, u"<style>p { color: lime }</style><p>a"_s);
        row("server code", u"<? a ?><p>b"_s, u"<? other ?><p>b<%= c %>"_s);
        row("an odd attribute", u"<p>"_s, u"<p <b =x \">a"_s);
        row("body", u"</body><body class=a>"_s, u"</body><body class=b>"_s);
    }
    void becomesTheSource()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        QVERIFY(m_bench->show(page(before)));
        QVERIFY(m_bench->show(page(after)));
        QCOMPARE(m_bench->live.loads(), 1);
        const QString changed = m_bench->html();
        m_bench->live.reload();
        const int shown = m_bench->shown;
        QVERIFY(waitUntil([&] { return m_bench->shown > shown; }, LiveBench::patience));
        QCOMPARE(changed, m_bench->html());
    }

    void manyChanges()
    {
        const QStringList pieces{
            u"<p>"_s,      u"</p>"_s,       u"<div id=a>"_s, u"</div>"_s,        u"text "_s,
            u"<b>"_s,      u"</b>"_s,       u"<ul><li>"_s,   u"</ul>"_s,         u"<table><tr><td>"_s,
            u"</table>"_s, u"<!-- c -->"_s, u"<br>"_s,       u"<img alt='x'>"_s, u"<h1>"_s};
        QRandomGenerator random(7);
        QStringList body;
        for (int i = 0; i < 300; ++i)
            body.append(pieces[random.bounded(pieces.size())]);
        QVERIFY(m_bench->show(page(body.join(QString()))));
        for (int i = 0; i < 60; ++i) {
            const qsizetype at = random.bounded(body.size());
            switch (i % 3) {
            case 0:
                body.insert(at, pieces[random.bounded(pieces.size())]);
                break;
            case 1:
                body.removeAt(at);
                break;
            default:
                body.move(at, random.bounded(body.size()));
            }
            QVERIFY(m_bench->show(page(body.join(QString()))));
            const QString parsed =
                m_bench->ask(u"new DOMParser().parseFromString(`%1`, 'text/html').documentElement.outerHTML"_s.arg(
                    page(body.join(QString()))));
            QCOMPARE(m_bench->html(), parsed);
        }
        QCOMPARE(m_bench->live.loads(), 1);
    }

    void keepsNodesScrollAndForms()
    {
        const QString fields = u"<input id=f value=a><textarea id=t>a</textarea><input id=c type=checkbox>"_s;
        const QString tall = u"<div style='height: 3000px'>x</div>"_s;
        QVERIFY(m_bench->show(page(u"<p id=p>a</p>"_s + fields + tall)));
        m_bench->ask(
            u"window.before = document.getElementById('p'); f.value = 'typed'; t.value = 'mine'; c.checked = true;"
            "scrollTo(0, 700)"_s);
        QVERIFY(m_bench->show(page(u"<h1>new</h1><p id=p class=c>ab</p>"_s + fields + tall)));
        QCOMPARE(
            m_bench->ask(u"[before === document.getElementById('p') && before.className, f.value, t.value, c.checked, "
                         "scrollY].join()"_s),
            u"c,typed,mine,true,700"_s);
        QCOMPARE(m_bench->live.loads(), 1);
    }

    /// A change of scripts, links or the doctype asks for a new load, which keeps the same.
    void loadsAnewAndKeepsTheRest_data()
    {
        QTest::addColumn<QString>("part");
        QTest::newRow("script") << u"<script>window.a = 1</script>"_s;
        QTest::newRow("link") << u"<link rel=stylesheet href=none.css>"_s;
        QTest::newRow("template") << u"<template><p>a</template>"_s;
        QTest::newRow("base") << u"<base href=sub/>"_s;
    }
    void loadsAnewAndKeepsTheRest()
    {
        QFETCH(QString, part);
        const QString body = u"<input name=f value=a><input name=f><select id=s><option>a<option>b</select>"
                             "<div style='height: 3000px'>x</div>"_s;
        QVERIFY(m_bench->show(page(body)));
        m_bench->ask(u"document.querySelectorAll('input')[1].value = 'typed'; s.selectedIndex = 1; scrollTo(0, 700)"_s);
        QVERIFY(m_bench->show(page(part + body)));
        QCOMPARE(m_bench->live.loads(), 2);
        QCOMPARE(m_bench->ask(u"[...document.querySelectorAll('input')].map(i => i.value).join() + s.selectedIndex + "
                              "',' + scrollY"_s),
                 u"a,typed1,700"_s);
    }

    void theDoctype()
    {
        QVERIFY(m_bench->show(u"<p>a"_s));
        QCOMPARE(m_bench->ask(u"document.compatMode"_s), u"BackCompat"_s);
        QVERIFY(m_bench->show(u"<!DOCTYPE html><p>a"_s));
        QCOMPARE(m_bench->ask(u"document.compatMode"_s), u"CSS1Compat"_s);
    }

    void keepsWhatScriptsMade()
    {
        const QString script = u"<script>addEventListener('DOMContentLoaded', () => {"
                               "const made = document.createElement('i'); made.textContent = 'made';"
                               "document.getElementById('p').before(made);"
                               "document.getElementById('q').className = 'set'; })</script>"_s;
        QVERIFY(m_bench->show(page(script + u"<p id=p>a</p><p id=q>b</p><p>c</p>"_s)));
        QVERIFY(m_bench->show(page(script + u"<p id=p>a</p><p>new</p><p id=q title=x>b2</p><p>c</p>"_s)));
        QCOMPARE(m_bench->live.loads(), 1);
        QCOMPARE(m_bench->ask(u"document.body.innerHTML.replace(/<script.*script>/, '')"_s),
                 u"<i>made</i><p id=\"p\">a</p><p>new</p><p id=\"q\" class=\"set\" title=\"x\">b2</p><p>c</p>"_s);
    }

    /// The page's scripts run, and see nothing of what follows the source.
    void leavesThePageAlone()
    {
        QVERIFY(m_bench->show(page(u"<script>window.seen = []; new MutationObserver(all => seen.push(...all))"
                                   ".observe(document, {subtree: true, attributes: true, childList: true})</script>"
                                   "<p>a</p><p id=b>b</p>"_s)));
        m_bench->live.showCaret({page({}).indexOf(u"<body>")}, true);
        m_bench->ask(u"seen.length = 0"_s);
        const QString again = page(u"<script>window.seen = []; new MutationObserver(all => seen.push(...all))"
                                   ".observe(document, {subtree: true, attributes: true, childList: true})</script>"
                                   "<p>a</p>   <p id=b>b</p>"_s);
        QVERIFY(m_bench->show(again));
        m_bench->live.showCaret({again.indexOf(u"<p id=b>")}, true);
        QTRY_COMPARE(m_bench->ask(u"getComputedStyle(b).outlineStyle"_s), u"solid"_s);
        QCOMPARE(m_bench->ask(u"String(seen.length) + typeof zephiraLive + typeof qt"_s), u"1undefinedundefined"_s);
    }

    void aHugePage()
    {
        const QString body = QString(u"<p class=a>some words of a long page</p>\r\n"_s).repeated(50'000);
        QVERIFY(m_bench->show(page(body)));
        QCOMPARE(m_bench->ask(u"document.querySelectorAll('p').length"_s), u"50000"_s);
        QVERIFY(m_bench->show(page(body + u"<h1>end</h1>"_s)));
        QCOMPARE(m_bench->ask(u"document.querySelector('h1').textContent"_s), u"end"_s);
        QCOMPARE(m_bench->live.loads(), 1);
    }

    void manyLevels()
    {
        const QString body = QString(u"<div>"_s).repeated(10'000);
        QVERIFY(m_bench->show(page(body)));
        QVERIFY(m_bench->show(page(body + u"end"_s)));
        QCOMPARE(m_bench->ask(u"document.body.textContent.trim()"_s), u"end"_s);
        QCOMPARE(m_bench->lost, 0);
    }

private:
    std::unique_ptr<LiveBench> m_bench;
};

ZEPHIRA_TEST(TstLiveChanges)

#include "tst_livechanges.moc"

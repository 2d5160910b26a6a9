// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/routerbench.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString nowhere = u"C:\\nonexist.iamcool.forever"_s;

void expectSaveQuestion(RouterBench &bench, const QString &browser, Answer answer)
{
    bench.world.prompts.expect(
        {u"You must save your document to preview in "_s + browser + u", would you like to save now?"_s,
         {},
         Question::Icon::Question,
         Question::Buttons::YesNo},
        answer);
}

void expectPathQuestion(RouterBench &bench, const QString &initial, const std::optional<QString> &answer)
{
    bench.world.prompts.expectInput(
        {u"The default path to Internet Explorer was not found, please enter the path to Internet Explorer"_s,
         u"Internet Explorer Path"_s, initial},
        answer);
}

} // namespace

class TstBrowserPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namedBrowser();
    void blanksDivideThePath();
    void noPreviewWithoutSaving();
    void asksForThePath();
    void aWrongPathChangesNothing_data();
    void aWrongPathChangesNothing();
    void aBrowserThatDoesNotStart();
    void defaultBrowser();
    void defaultBrowserWithoutAName();
    void refusedInVisualMode_data();
    void refusedInVisualMode();
};

void TstBrowserPreview::namedBrowser()
{
    RouterBench bench;
    bench.world.configuration.put(u"Paths"_s, u"IEPATH"_s, u"/usr/bin/browser"_s);
    bench.world.files.contents[u"/usr/bin/browser"_s] = {};
    bench.world.document.dialogFile = u"/home/me/page.html"_s;
    bench.document.openAtStart(u"/home/me/page.html"_s);
    expectSaveQuestion(bench, u"Internet Explorer"_s, Answer::Yes);
    bench.pullDown(u"pie"_s);
    QVERIFY(bench.world.files.contents.contains(u"/home/me/page.html"_s));
    QCOMPARE(bench.world.shell.started,
             (std::vector<FakeShell::Start>{{u"/usr/bin/browser"_s, {u"/home/me/page.html"_s}}}));
    QVERIFY(bench.world.configuration.log.isEmpty());
}

void TstBrowserPreview::blanksDivideThePath()
{
    RouterBench bench;
    bench.world.configuration.put(u"Paths"_s, u"IEPATH"_s, u"/opt/my browser"_s);
    bench.world.files.contents[u"/opt/my browser"_s] = {};
    bench.world.document.dialogFile = u"/home/my page.html"_s;
    bench.document.openAtStart(u"/home/my page.html"_s);
    expectSaveQuestion(bench, u"Internet Explorer"_s, Answer::Yes);
    bench.pullDown(u"pie"_s);
    QCOMPARE(bench.world.shell.started,
             (std::vector<FakeShell::Start>{{u"/opt/my browser"_s, {u"/home/my"_s, u"page.html"_s}}}));
}

void TstBrowserPreview::noPreviewWithoutSaving()
{
    RouterBench bench;
    bench.world.configuration.put(u"Paths"_s, u"IEPATH"_s, u"/usr/bin/browser"_s);
    bench.world.files.contents[u"/usr/bin/browser"_s] = {};
    expectSaveQuestion(bench, u"Internet Explorer"_s, Answer::No);
    bench.pullDown(u"pie"_s);
    expectSaveQuestion(bench, u"your default browser"_s, Answer::No);
    bench.pullDown(u"pidb"_s);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.shell.started.empty());
    QVERIFY(bench.world.shell.opened.isEmpty());
}

void TstBrowserPreview::asksForThePath()
{
    RouterBench bench;
    bench.world.files.contents[u"/usr/bin/other"_s] = {};
    bench.world.document.dialogFile = u"/p.html"_s;
    bench.document.openAtStart(u"/p.html"_s);
    expectPathQuestion(bench, nowhere, u"/usr/bin/other"_s);
    expectSaveQuestion(bench, u"Internet Explorer"_s, Answer::Yes);
    bench.pullDown(u"pie"_s);
    QCOMPARE(bench.world.configuration.log, QStringList{u"[Paths] IEPATH=/usr/bin/other"_s});
    QCOMPARE(bench.world.shell.started, (std::vector<FakeShell::Start>{{u"/usr/bin/other"_s, {u"/p.html"_s}}}));
}

void TstBrowserPreview::aWrongPathChangesNothing_data()
{
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("offered");
    QTest::addColumn<std::optional<QString>>("answer");
    QTest::newRow("wrong") << u""_s << nowhere << std::optional<QString>(u"/nowhere"_s);
    QTest::newRow("empty") << u""_s << nowhere << std::optional<QString>(u""_s);
    QTest::newRow("cancelled") << u"/gone"_s << u"/gone"_s << std::optional<QString>();
}

void TstBrowserPreview::aWrongPathChangesNothing()
{
    QFETCH(QString, kept);
    QFETCH(QString, offered);
    QFETCH(std::optional<QString>, answer);
    RouterBench bench;
    bench.world.configuration.put(u"Paths"_s, u"IEPATH"_s, kept);
    expectPathQuestion(bench, offered, answer);
    bench.world.prompts.expect({u"Sorry, the new path was not found, Zephira will now exit this function..."_s},
                               Answer::Ok);
    bench.pullDown(u"pie"_s);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.window.calls.isEmpty());
    QVERIFY(bench.world.configuration.log.isEmpty());
    QVERIFY(bench.world.shell.started.empty());
}

void TstBrowserPreview::aBrowserThatDoesNotStart()
{
    RouterBench bench;
    bench.document.openAtStart(u"/home/me/page.html"_s);
    bench.world.configuration.put(u"Paths"_s, u"IEPATH"_s, u"/etc/passwd"_s);
    bench.world.files.contents[u"/etc/passwd"_s] = {};
    bench.world.shell.failure = Error{Error::Code::Failed, u"It is not a program."_s};
    expectSaveQuestion(bench, u"Internet Explorer"_s, Answer::Yes);
    bench.world.prompts.expectTell(u"It is not a program."_s, {}, Question::Icon::Exclamation);
    bench.pullDown(u"pie"_s);
    QVERIFY(bench.world.prompts.verify());
}

void TstBrowserPreview::defaultBrowser()
{
    RouterBench bench;
    bench.world.document.dialogFile = u"/home/my page.html"_s;
    bench.document.openAtStart(u"/home/my page.html"_s);
    expectSaveQuestion(bench, u"your default browser"_s, Answer::Yes);
    bench.pullDown(u"pidb"_s);
    QVERIFY(bench.world.files.contents.contains(u"/home/my page.html"_s));
    QCOMPARE(bench.world.shell.opened, QStringList{u"/home/my page.html"_s});
}

void TstBrowserPreview::defaultBrowserWithoutAName()
{
    RouterBench bench;
    bench.world.shell.failure = Error{};
    expectSaveQuestion(bench, u"your default browser"_s, Answer::Yes);
    bench.world.prompts.expectFile(
        {u"Save a document..."_s, u"Text Files|*.txt|All Files|*.*"_s, bench.world.document.project, true},
        std::nullopt);
    bench.pullDown(u"pidb"_s);
    QVERIFY(bench.world.prompts.verify());
    QCOMPARE(bench.world.shell.opened, QStringList{QString()});
}

void TstBrowserPreview::refusedInVisualMode_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("named browser") << u"pie"_s;
    QTest::newRow("default browser") << u"pidb"_s;
}

void TstBrowserPreview::refusedInVisualMode()
{
    QFETCH(QString, key);
    RouterBench bench;
    bench.world.designer.showing = true;
    bench.expectLimitation(u"Sorry, these tools can only be used in Code View"_s);
    bench.pullDown(key);
    QVERIFY(bench.world.prompts.verify());
    QVERIFY(bench.window.calls.isEmpty());
}

ZEPHIRA_TEST(TstBrowserPreview)
#include "tst_browserpreview.moc"

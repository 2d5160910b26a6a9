// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QWebEngineScript>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace zephira;

/// What the designer knows of a page that is busy, unresponsive or has crashed.
class TstDesignerLoss : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanup() { m_bench.reset(); }

    void oneLoadAfterTheOther();
    void lateReports_data();
    void lateReports();
    void lateClipboardKey();
    void copiesAreKeptWhileTyping();
    void pageThatHangs();
    void pageThatHangsGivesWay();
    void pageThatDies();
    void betweenLossAndReload();
    void pageThatDiesAgainAndAgain();
    void lossOfAnUntouchedPage();

private:
    DesignerBridge &bridge() { return m_bench->designer.page().bridge(); }
    /// The latest state that the page reported, to be sent again as a report that was delayed.
    QVariantMap lastReport() { return m_bench->ask(u"zephiraDesigner.state().state"_s).toMap(); }
    void edit(const QString &html)
    {
        m_bench->ask(u"getSelection().collapse(document.querySelector('p'), 1); null"_s);
        m_bench->designer.pasteHtml(html);
    }
    void killPage()
    {
        const qint64 process = m_bench->designer.page().renderProcessPid();
        QVERIFY(process > 0);
        ::kill(static_cast<pid_t>(process), SIGKILL);
    }

    std::unique_ptr<DesignerBench> m_bench;
};

/// A change just before the next load belongs to the old page and doesn't affect the new one.
void TstDesignerLoss::oneLoadAfterTheOther()
{
    m_bench->load(u"<p>old</p>"_s);
    m_bench->designer.page().runJavaScript(u"document.querySelector('p').append('er'); null"_s,
                                           QWebEngineScript::ApplicationWorld);
    m_bench->load(u"<p>new</p>"_s);
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>new</p>"_s);
    QCOMPARE(m_bench->designer.queryStatus(DesignerCommand::Undo), 1);
}

void TstDesignerLoss::lateReports_data()
{
    QTest::addColumn<bool>("isOfThisPage");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("counts");
    QTest::newRow("of another page") << false << 1000 << false;
    QTest::newRow("older than the last one") << true << -1 << false;
    QTest::newRow("the last one again") << true << 0 << false;
    QTest::newRow("news") << true << 1000 << true;
}

void TstDesignerLoss::lateReports()
{
    QFETCH(bool, isOfThisPage);
    QFETCH(int, step);
    QFETCH(bool, counts);
    m_bench->load(u"<p>a</p>"_s);
    edit(u"b"_s);
    m_bench->run(DesignerCommand::Undo);
    QVERIFY(!m_bench->designer.isDirty());
    // The answer to a command is the newest report; this one follows it.
    QVariantMap report = lastReport();
    report[u"kind"_s] = u"state"_s;
    bridge().tell(report);
    report[u"number"_s] = report.value(u"number"_s).toLongLong() + step;
    report[u"dirty"_s] = true;
    report[u"selection"_s] = u"Control"_s;
    if (!isOfThisPage)
        report[u"page"_s] = u"zsother"_s;
    bridge().tell(report);
    QCOMPARE(m_bench->designer.selectionType(), counts ? u"Control"_s : u"None"_s);
    QCOMPARE(m_bench->designer.isDirty(), counts);
}

void TstDesignerLoss::lateClipboardKey()
{
    m_bench->show(u"<p>a[b]c</p>"_s);
    const auto tell = [this](const QString &page, int number, DesignerCommand command) {
        bridge().tell({{u"kind"_s, u"command"_s},
                       {u"page"_s, page},
                       {u"number"_s, number},
                       {u"command"_s, static_cast<int>(command)}});
        QCoreApplication::processEvents();
    };
    const QString own = lastReport().value(u"page"_s).toString();
    tell(u"zsother"_s, 1000, DesignerCommand::Cut);
    tell(own, 1000, DesignerCommand::Copy);
    tell(own, 1001, DesignerCommand::Delete);
    QCOMPARE(m_bench->body(), u"<p>abc</p>"_s);
    tell(own, 1002, DesignerCommand::Cut);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>ac</p>"_s, DesignerBench::patience);
}

/// Even while changes never pause, copies are kept, and if the page is lost, the last copy is the text.
void TstDesignerLoss::copiesAreKeptWhileTyping()
{
    m_bench->load(u"<p>a</p>"_s);
    QList<DesignerCopy> copies;
    const QObject listener;
    connect(&bridge(), &DesignerBridge::told, &listener, [&](const QVariantMap &report) {
        if (report.value(u"kind"_s).toString() == u"copy")
            copies.append(DesignerCopy::fromPage(report));
    });
    m_bench->ask(u"setInterval(() => document.querySelector('p').firstChild.appendData('x'), 20)"_s);
    QTRY_VERIFY_WITH_TIMEOUT(copies.size() >= 2, DesignerBench::patience);
    const DesignerCopy first = copies[0];
    const DesignerCopy second = copies[1];
    QVERIFY(second.stamp.number > first.stamp.number);
    QVERIFY(second.text.size() > first.text.size());
    killPage();
    QTRY_VERIFY_WITH_TIMEOUT(m_bench->designer.documentHtml().startsWith(u"<p>axx") && m_bench->designer.isDirty(),
                             DesignerBench::patience);
}

/// A caller waits for a busy page no longer than promised, and then gets what the page reported last.
void TstDesignerLoss::pageThatHangs()
{
    m_bench->load(u"<p>a</p>"_s);
    edit(u"b"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    const int patience = m_bench->designer.page().patience();
    m_bench->designer.page().setPatience(200);
    bool ended = false;
    m_bench->designer.page().runJavaScript(
        u"{ const end = performance.now() + 3000; while (performance.now() < end); } null"_s,
        QWebEngineScript::ApplicationWorld, [&](const QVariant &) { ended = true; });
    QElapsedTimer time;
    time.start();
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    QVERIFY(m_bench->designer.isDirty());
    m_bench->run(DesignerCommand::Bold);
    QVERIFY2(time.elapsed() < 2500, qPrintable(QString::number(time.elapsed())));
    QTRY_VERIFY_WITH_TIMEOUT(ended && m_bench->designer.page().isResponding(), DesignerBench::patience);
    m_bench->designer.page().setPatience(patience);
    m_bench->designer.pasteHtml(u"c"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>abc</p>"_s);
}

/// A page that hangs forever is replaced when another one is loaded.
void TstDesignerLoss::pageThatHangsGivesWay()
{
    m_bench->load(u"<p>a</p>"_s);
    const qint64 process = m_bench->designer.page().renderProcessPid();
    m_bench->designer.page().setPatience(200);
    m_bench->designer.page().runJavaScript(u"for (;;);"_s, QWebEngineScript::ApplicationWorld);
    m_bench->run(DesignerCommand::Bold);
    QVERIFY(!m_bench->designer.page().isResponding());
    int losses = 0;
    m_bench->designer.setEvents({.processLost = [&] { ++losses; }});
    m_bench->load(u"<p>b</p>"_s);
    QCOMPARE(m_bench->body(), u"<p>b</p>"_s);
    QCOMPARE(losses, 1);
    QVERIFY(m_bench->designer.page().renderProcessPid() != process);
    QVERIFY(!m_bench->designer.isDirty());
}

void TstDesignerLoss::pageThatDies()
{
    m_bench->load(u"<p>a</p><% s %>"_s);
    edit(u"b"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p><% s %>"_s);
    QSignalSpy complete(&m_bench->designer, &DesignerWidget::DocumentComplete);
    killPage();
    QTRY_VERIFY_WITH_TIMEOUT(!complete.isEmpty(), DesignerBench::patience);
    QVERIFY(m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p><% s %>"_s);
    m_bench->designer.pasteHtml(u"c"_s);
    QVERIFY(m_bench->designer.documentHtml().contains(u"c"));
    m_bench->designer.setDocumentHtml(u"x"_s);
    QVERIFY(!m_bench->designer.isDirty());
}

/// Once the page is lost, nothing is requested from it.
void TstDesignerLoss::betweenLossAndReload()
{
    m_bench->load(u"<p>a</p>"_s);
    edit(u"b"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    struct Moment {
        bool isDirty = false;
        QString text;
        int status = 0;
        bool isResponding = false;
    };
    std::optional<Moment> moment;
    connect(&m_bench->designer.page(), &QWebEnginePage::renderProcessTerminated, this, [&] {
        DesignerWidget &designer = m_bench->designer;
        designer.setShowBorders(true);
        moment = Moment{designer.isDirty(), designer.documentHtml(), designer.queryStatus(DesignerCommand::Bold),
                        designer.page().isResponding()};
    });
    killPage();
    QTRY_VERIFY_WITH_TIMEOUT(moment.has_value(), DesignerBench::patience);
    QVERIFY(moment->isDirty);
    QCOMPARE(moment->text, u"<p>ab</p>"_s);
    QCOMPARE(moment->status, 1);
    QVERIFY(moment->isResponding);
    // A command waits until the page has been loaded again.
    m_bench->run(DesignerCommand::SelectAll);
    m_bench->run(DesignerCommand::Bold);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p><b>ab</b></p>"_s);
    QVERIFY(m_bench->designer.showBorders());
}

/// After several losses the page isn't loaded again; its text is still available, and calls don't wait for the page.
void TstDesignerLoss::pageThatDiesAgainAndAgain()
{
    m_bench->load(u"<p>a</p>"_s);
    edit(u"b"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    constexpr int reloads = 3;
    QSignalSpy complete(&m_bench->designer, &DesignerWidget::DocumentComplete);
    QSignalSpy losses(&m_bench->designer.page(), &QWebEnginePage::renderProcessTerminated);
    for (int loss = 1; loss <= reloads; ++loss) {
        killPage();
        QTRY_COMPARE_WITH_TIMEOUT(complete.count(), loss, DesignerBench::patience);
    }
    killPage();
    QTRY_COMPARE_WITH_TIMEOUT(losses.count(), reloads + 1, DesignerBench::patience);
    QCoreApplication::processEvents();
    QElapsedTimer time;
    time.start();
    m_bench->run(DesignerCommand::Bold);
    m_bench->designer.pasteHtml(u"c"_s);
    QCOMPARE(m_bench->designer.queryStatus(DesignerCommand::Bold), 1);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    QVERIFY(m_bench->designer.isDirty());
    QVERIFY2(time.elapsed() < m_bench->designer.page().patience() / 2, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(complete.count(), reloads);
    // For another page the count starts again.
    m_bench->load(u"<p>x</p>"_s);
    edit(u"y"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>xy</p>"_s);
}

void TstDesignerLoss::lossOfAnUntouchedPage()
{
    const QString page = u"<P>a<BR>"_s;
    m_bench->load(page);
    edit(u"b"_s);
    QVERIFY(m_bench->designer.documentHtml() != page);
    m_bench->run(DesignerCommand::Undo);
    QSignalSpy complete(&m_bench->designer, &DesignerWidget::DocumentComplete);
    killPage();
    QTRY_VERIFY_WITH_TIMEOUT(!complete.isEmpty(), DesignerBench::patience);
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), page);
}

ZEPHIRA_TEST(TstDesignerLoss)
#include "tst_designerloss.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <csignal>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// What is promised, in milliseconds, and how many times as long a busy machine may take. A window that waits for a page
/// which doesn't answer is beyond both.
constexpr int promisedAnswer = 100;
constexpr int promisedPreview = 2000;
constexpr int promisedLeaving = 2300;
constexpr int answerShare = 10;
constexpr int share = 3;

constexpr int timeToHang = 300;

/// The longest time in which the window did nothing, since it was made.
class Pulse
{
public:
    Pulse()
    {
        m_gap.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { m_longest = std::max(m_longest, m_gap.restart()); });
        m_timer.start(10);
    }

    bool isAlive() const { return longest() < promisedAnswer * answerShare; }
    qint64 longest() const { return std::max(m_longest, m_gap.elapsed()); }

private:
    QTimer m_timer;
    QElapsedTimer m_gap;
    qint64 m_longest = 0;
};

struct HangBench : WebBench {
    HangBench() : WebBench(QStringLiteral("page.html"), "<title>first</title><p>old</p>\r\n")
    {
        // Both views exist, so that no time is measured in which the engine starts.
        [this] {
            QVERIFY(design());
            QVERIFY(preview(u"first"_s));
        }();
    }

    /// The process of the page in that view.
    pid_t process(const QString &view) const
    {
        const QList<QObject *> parts = find<QWidget>(view)->findChildren<QObject *>();
        for (const QObject *part : parts) {
            if (part->inherits("QWebEnginePage"))
                return static_cast<pid_t>(part->property("renderProcessPid").toLongLong());
        }
        return 0;
    }

    /// Shows a page in the preview that doesn't answer any more.
    void hang(const QByteArray &script)
    {
        select(1);
        window->rt().setText(QString::fromLatin1("<title>hangs</title><p>old</p><script>" + script + "</script>"));
        QVERIFY(window->doSave());
        select(2);
        waitUntil([this] { return pageTitle() == u"hangs"; }, timeToHang);
        waitUntil([] { return false; }, timeToHang);
    }
};

bool isThere(pid_t process)
{
    return ::kill(process, 0) == 0;
}

} // namespace

/// Pages that don't come to an end, in the real window: it stays the user's.
class TstHangingPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePreview_data();
    void thePreview();
    void theDesignerWithChanges();
};

void TstHangingPage::thePreview_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("while it loads") << QByteArray("while (true);");
    QTest::newRow("a moment later") << QByteArray("setTimeout(() => { while (true); }, 50);");
}

void TstHangingPage::thePreview()
{
    QFETCH(QByteArray, script);
    HangBench bench;
    bench.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(bench.window.get()));
    QElapsedTimer time;

    // The bar above it takes keys.
    bench.hang(script);
    const pid_t first = bench.process(u"ww1"_s);
    QVERIFY(isThere(first));
    {
        const Pulse pulse;
        auto *address = bench.find<QLineEdit>(u"txturl"_s);
        address->clear();
        for (const char key : {'a', 'b', 'c'}) {
            QTest::keyClick(address, key);
            waitUntil([] { return false; }, promisedAnswer);
        }
        QCOMPARE(address->text(), u"abc"_s);
        QVERIFY2(pulse.isAlive(), QByteArray::number(pulse.longest()));
    }

    // So does the code view, and the next page comes in a process of its own.
    {
        const Pulse pulse;
        bench.select(1);
        QVERIFY(bench.window->rt().hasFocus());
        bench.window->rt().executeCmd(EditorCommand::SelectAll);
        QTest::keyClicks(bench.keyboardOf(u"rt"_s), u"<title>next</title>"_s);
        QCOMPARE(bench.window->rt().text(), u"<title>next</title>"_s);
        time.start();
        QVERIFY(bench.preview(u"next"_s));
        QVERIFY2(time.elapsed() < promisedPreview * share, QByteArray::number(time.elapsed()));
        QVERIFY2(pulse.isAlive(), QByteArray::number(pulse.longest()));
    }
    QVERIFY(bench.process(u"ww1"_s) != first);
    QVERIFY(waitUntil([&] { return !isThere(first); }, WebBench::patience));

    // The same from the preview itself.
    bench.hang(script);
    const pid_t second = bench.process(u"ww1"_s);
    {
        const Pulse pulse;
        bench.window->rt().setText(u"<title>third</title><p>text</p>"_s);
        time.start();
        bench.click(u"Toolbar1"_s, u"preview"_s);
        QVERIFY(bench.showsPage(u"third"_s));
        QVERIFY2(time.elapsed() < promisedPreview * share, QByteArray::number(time.elapsed()));
        QVERIFY2(pulse.isAlive(), QByteArray::number(pulse.longest()));
    }
    QVERIFY(waitUntil([&] { return !isThere(second); }, WebBench::patience));

    // The designer has a process of its own.
    bench.hang(script);
    const pid_t third = bench.process(u"ww1"_s);
    {
        const Pulse pulse;
        const QString source = bench.window->rt().text();
        time.start();
        QVERIFY(bench.design());
        QVERIFY2(time.elapsed() < promisedPreview * share, QByteArray::number(time.elapsed()));
        QCOMPARE(bench.html(), source);
        // The keys are the designer's, even when the hanging process has been replaced.
        QVERIFY(waitUntil([&] { return !isThere(third); }, WebBench::patience));
        waitUntil([] { return false; }, timeToHang);
        QVERIFY(bench.keyboardOf(u"DHTMLEdit1"_s)->hasFocus());
        bench.paste(u"<b>new</b>"_s);
        bench.select(1);
        QVERIFY(bench.window->rt().text().contains(u"<b>new</b>"));
        QVERIFY2(pulse.isAlive(), QByteArray::number(pulse.longest()));
    }
}

/// What was done in the designer comes home even if its page doesn't answer, no later than promised, and the window is
/// there all the time.
void TstHangingPage::theDesignerWithChanges()
{
    HangBench bench;
    QVERIFY(bench.design());
    bench.paste(u"<b>new</b>"_s);
    waitUntil([] { return false; }, timeToHang); // By now the program has a copy of the text.
    const pid_t stopped = bench.process(u"DHTMLEdit1"_s);
    QVERIFY(stopped > 0);
    QCOMPARE(::kill(stopped, SIGSTOP), 0);
    {
        const Pulse pulse;
        QElapsedTimer time;
        time.start();
        bench.select(1);
        QVERIFY2(time.elapsed() < promisedLeaving * 2, QByteArray::number(time.elapsed()));
        QVERIFY2(pulse.isAlive(), QByteArray::number(pulse.longest()));
    }
    QVERIFY2(bench.window->rt().text().contains(u"<b>new</b>"), qPrintable(bench.window->rt().text()));
    QVERIFY(bench.window->docModified());
    QVERIFY(bench.window->doSave());

    // Another page is edited in another process.
    QVERIFY(bench.design());
    QVERIFY(bench.process(u"DHTMLEdit1"_s) != stopped);
    QCOMPARE(bench.html(), bench.window->rt().text());
    bench.paste(u"<i>more</i>"_s);
    bench.select(1);
    QVERIFY(bench.window->rt().text().contains(u"<i>more</i>"));
    QVERIFY(waitUntil([&] { return !isThere(stopped); }, WebBench::patience));
}

ZEPHIRA_TEST(TstHangingPage)
#include "tst_hangingpage.moc"

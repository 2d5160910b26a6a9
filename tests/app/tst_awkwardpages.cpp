// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "views/live/livepane.h"

#include <QLabel>
#include <QStatusBar>
#include <QStringEncoder>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QString livePage(const WebBench &bench)
{
    const QList<QWidget *> parts = bench.find<QWidget>(u"livePane"_s)->findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (part->inherits("QWebEngineView"))
            return part->property("title").toString();
    }
    return {};
}

void typeAtTheEnd(const WebBench &bench, const QString &text)
{
    QWidget *keyboard = bench.keyboardOf(u"DHTMLEdit1"_s);
    keyboard->setFocus();
    QTest::keyClick(keyboard, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(keyboard, text);
}

QByteArray inUtf16(const QString &text, QStringConverter::Encoding encoding)
{
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

} // namespace

/// Pages that are hard to treat go through the live page and the designer; nothing is lost.
class TstAwkwardPages final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOtherByteStays_data();
    void everyOtherByteStays();
    void veryLarge();
};

void TstAwkwardPages::everyOtherByteStays_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const QByteArray &before) {
        QTest::newRow(name) << before << QByteArray(before).replace("end", "endX");
    };
    row("utf-8", "<title>t</title><p>\xC3\xA9\xD7\x90\xF0\x9F\x98\x80</p>\r\n<P>end\r\n");
    row("utf-8 mark", "\xEF\xBB\xBF<title>t</title><p>\xC3\xA9</p>\r\n<P>end\r\n");
    row("windows-1252", "<meta charset=windows-1252><title>t</title><p>\xE9\x80\x81</p>\r\n<P>end\r\n");
    row("another one than it says", "<meta charset=utf-8><title>t</title><p>\xE9\x80</p>\r\n<P>end\r\n");
    row("lf", "<title>t</title>\n<p>a\nb</p>\n<P>end\n");
    row("cr", "<title>t</title>\r<p>a\rb</p>\r<P>end\r");
    row("all line ends", "<title>t</title>\r\n<p>a\nb\rc</p>\r\n<P>end\n");
    row("control characters", "<title>t</title><p>a\x01\x02\x0C\x1B b</p>\r\n<P>end\r\n");
    row("zero bytes", QByteArray("<title>t</title><p>a@b @ c</p>\r\n<P>end\r\n").replace('@', '\0'));
    const QString page = u"<title>t</title><p>\u00E9\u05D0</p>\r\n<P>end\r\n"_s;
    const QString edited = u"<title>t</title><p>\u00E9\u05D0</p>\r\n<P>endX\r\n"_s;
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
        QTest::newRow(QStringConverter::nameForEncoding(encoding))
            << inUtf16(page, encoding) << inUtf16(edited, encoding);
}

void TstAwkwardPages::everyOtherByteStays()
{
    QFETCH(QByteArray, before);
    WebBench bench(u"page.html"_s, before);
    CodeMax &rt = bench.window->rt();
    bench.choose(u"textLivePage"_s);
    QVERIFY(waitUntil([&] { return livePage(bench) == u"t"; }, WebBench::patience));
    QVERIFY(bench.design());
    typeAtTheEnd(bench, u"X"_s);
    bench.select(1);
    QVERIFY(waitUntil([&] { return rt.isVisible(); }, WebBench::patience));
    bench.choose(u"save"_s);
    QTEST(WindowBench::read(bench.file), "after");
}

/// Nothing waits for ever, and what pauses says so.
void TstAwkwardPages::veryLarge()
{
    constexpr int paragraphs = 310'000;
    QByteArray page = "<!DOCTYPE html>\r\n<title>t</title>\r\n";
    for (int number = 0; number < paragraphs; ++number)
        page += "<P>This is paragraph " + QByteArray::number(number) + " of a page that is very large indeed.\r\n";
    page += "<P>end";
    QVERIFY(page.size() > 20'000'000);
    WebBench bench(u"page.html"_s, page);
    CodeMax &rt = bench.window->rt();
    QCOMPARE(rt.text().size(), page.size());
    bench.choose(u"textLivePage"_s);
    const auto *notice = bench.find<QLabel>(u"liveNotice"_s);
    QVERIFY(waitUntil([&] { return notice->isVisible(); }, WebBench::patience));
    QCOMPARE(notice->text(), u"This page is very large: it is shown when it is saved or reloaded."_s);
    QCOMPARE(livePage(bench), QString());
    rt.setFocus();
    QTest::keyClick(&rt, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(&rt, 'Y');
    bench.choose(u"save"_s);
    QCOMPARE(WindowBench::read(bench.file), page + 'Y');
    QVERIFY(waitUntil([&] { return livePage(bench) == u"t"; }, 2 * WebBench::patience));
    QVERIFY(bench.design());
    typeAtTheEnd(bench, u"X"_s);
    bench.select(1);
    QVERIFY(waitUntil([&] { return rt.isVisible(); }, WebBench::patience));
    const QString text = rt.text();
    QVERIFY2(text.endsWith(u"<p>endYX</p>"_s), qPrintable(text.right(60)));
    QCOMPARE(text.count(u" of a page that is very large indeed."_s), paragraphs);
    QCOMPARE(bench.window->statusBar()->currentMessage(),
             u"This page is very large: it was written anew as a whole, not only what was changed."_s);
    bench.choose(u"undo"_s);
    QCOMPARE(rt.text().toUtf8(), page + 'Y');
}

ZEPHIRA_TEST(TstAwkwardPages)
#include "tst_awkwardpages.moc"

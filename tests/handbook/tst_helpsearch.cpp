// SPDX-License-Identifier: GPL-3.0-or-later
#include "handbook/helptable.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QJsonDocument>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <optional>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Time-out in milliseconds for showing a page, long enough for a busy machine.
constexpr int patience = 60000;

/// A visible page of the handbook, opened from its file as a browser does it.
struct Bench {
    QWebEngineView view;

    explicit Bench(QStringView page = contentsPage)
    {
        view.resize(900, 700);
        view.show();
        view.activateWindow();
        bool loaded = false;
        QObject::connect(&view, &QWebEngineView::loadFinished, &view, [&loaded](bool ok) { loaded = ok; });
        view.load(QUrl::fromLocalFile(QStringLiteral(ZEPHIRA_HANDBOOK) + u'/' + helpFile(page)));
        [&] {
            QVERIFY(waitUntil([&] { return loaded; }, patience));
            QVERIFY(waitUntil([&] { return ask(u"document.hasFocus()"_s) == u"true"; }, patience));
        }();
    }

    /// The result of a script in the page, as text.
    QString ask(const QString &script)
    {
        std::optional<QString> answer;
        view.page()->runJavaScript(script, [&](const QVariant &value) { answer = value.toString(); });
        waitUntil([&] { return answer.has_value(); }, patience);
        return answer.value_or(u"(no answer)"_s);
    }

    void focusField() { ask(u"document.getElementById('sought').focus()"_s); }

    void type(const QString &text)
    {
        focusField();
        QTest::keyClicks(view.focusProxy(), text);
    }

    void press(Qt::Key key) { QTest::keyClick(view.focusProxy(), key); }

    QString told() { return ask(u"document.getElementById('told').textContent"_s); }
    /// The titles that were found, in their order.
    QString found()
    {
        return ask(u"[...document.querySelectorAll('#found a')].map((link) => link.textContent).join('|')"_s);
    }
    QString focused() { return ask(u"document.activeElement.textContent || document.activeElement.id"_s); }

    bool shows(QStringView page)
    {
        return waitUntil([&] { return view.url().fileName() == helpFile(page); }, patience);
    }
};

} // namespace

/// The search of the handbook in the real web engine, without a server.
class TstHelpSearch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsByTitleFirst()
    {
        Bench bench;
        QCOMPARE(bench.ask(u"document.getElementById('searching').hidden"_s), u"false"_s);
        bench.type(u"Color Spy"_s);
        QVERIFY(waitUntil([&] { return bench.found().startsWith(u"Color Spy"); }, patience));
        QVERIFY(bench.told().endsWith(u" pages"));
    }

    /// Each word must be on the page; the beginning of a word is enough, and case doesn't matter.
    void allWordsByTheirBeginnings()
    {
        Bench bench(u"find");
        bench.type(u"TIDY capit"_s);
        QVERIFY(waitUntil([&] { return bench.found().contains(u"Validate Your HTML"); }, patience));
        QVERIFY(!bench.found().contains(u"Spelling"));
    }

    void theKeyboardOpensAPage()
    {
        Bench bench;
        bench.type(u"cookie"_s);
        QVERIFY(waitUntil([&] { return bench.found().startsWith(u"Cookie Wizard"); }, patience));
        bench.press(Qt::Key_Down);
        QVERIFY(waitUntil([&] { return bench.focused() == u"Cookie Wizard"; }, patience));
        bench.press(Qt::Key_Up);
        QVERIFY(waitUntil([&] { return bench.focused() == u"sought"; }, patience));
        bench.press(Qt::Key_Down);
        QVERIFY(waitUntil([&] { return bench.focused() == u"Cookie Wizard"; }, patience));
        bench.press(Qt::Key_Return);
        QVERIFY(bench.shows(u"cookie-wizard"));
    }

    void returnOpensTheFirst()
    {
        Bench bench;
        bench.type(u"marquee"_s);
        QVERIFY(waitUntil([&] { return bench.found().startsWith(u"Marquee Wizard"); }, patience));
        bench.press(Qt::Key_Return);
        QVERIFY(bench.shows(u"marquee-wizard"));
    }

    void nothingFound()
    {
        Bench bench;
        bench.type(u"xylophone"_s);
        QVERIFY(waitUntil([&] { return bench.told() == u"Nothing found for \u201cxylophone\u201d."; }, patience));
        QCOMPARE(bench.found(), QString());
        bench.press(Qt::Key_Return);
        bench.press(Qt::Key_Escape);
        QVERIFY(waitUntil([&] { return bench.told().isEmpty(); }, patience));
        QCOMPARE(bench.ask(u"document.getElementById('sought').value"_s), QString());
        QCOMPARE(bench.view.url().fileName(), helpFile(contentsPage));
    }

    /// What a word is called that every object of a script has is a word like any other.
    void wordsOfTheLanguage()
    {
        Bench bench;
        bench.type(u"constructor toString"_s);
        QVERIFY(waitUntil([&] { return bench.told().startsWith(u"Nothing found"); }, patience));
    }
};

ZEPHIRA_TEST(TstHelpSearch)

#include "tst_helpsearch.moc"

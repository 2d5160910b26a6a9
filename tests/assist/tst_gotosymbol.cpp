// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/assistfixture.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QListView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

struct SymbolBench : AssistFixture {
    explicit SymbolBench(const QString &text)
    {
        show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window doesn't become active");
        world.document.setLanguageRow(language::Html);
        editor.setText(text);
    }

    void open() { run(TextCommand::GoToSymbol); }
    const QListView &list() const { return *window.findChild<QListView *>(u"lstpick"_s); }
    QStringList rows() const
    {
        QStringList found;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            found.append(list().model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
        return found;
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
};

} // namespace

/// Going to a place of the document by its name.
class TstGoToSymbol final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesThere()
    {
        SymbolBench bench(u"<h1>\u05e9\u05dc\u05d5\u05dd</h1>\r\n<p id=\"intro\">\r\n<h2>News</h2>"_s);
        bench.open();
        QCOMPARE(
            bench.rows(),
            (QStringList{u"\u05e9\u05dc\u05d5\u05dd, 1, Heading 1"_s, u"intro, 2, Id"_s, u"News, 3, Heading 2"_s}));
        QTest::keyClicks(QApplication::focusWidget(), u"nw"_s);
        QCOMPARE(bench.rows(), QStringList{u"News, 3, Heading 2"_s});
        SymbolBench::press(Qt::Key_Return);
        QVERIFY(bench.editor.hasFocus());
        QCOMPARE(bench.editor.selection(false), (CodeMaxRange{2, 0, 2, 0}));
        bench.open();
        QTest::keyClicks(QApplication::focusWidget(), u"intro"_s);
        SymbolBench::press(Qt::Key_Return);
        QCOMPARE(bench.editor.selection(false), (CodeMaxRange{1, 7, 1, 7}));
    }

    /// A line that is folded away or far below is brought to sight.
    void showsTheLine()
    {
        SymbolBench bench(u"<div>\r\n<p id=\"a\">\r\n</div>"_s + u"\r\n"_s.repeated(500) + u"<p id=\"b\">"_s);
        bench.editor.setLanguage(u"HTML"_s);
        const SciEngine &engine = bench.editor.engine();
        engine.send(QsciScintillaBase::SCI_HIDELINES, 1, 1);
        bench.open();
        SymbolBench::press(Qt::Key_Return);
        QVERIFY(engine.send(QsciScintillaBase::SCI_GETLINEVISIBLE, 1));
        bench.open();
        SymbolBench::press(Qt::Key_Down);
        SymbolBench::press(Qt::Key_Return);
        const qsizetype first = engine.send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE);
        QVERIFY(first > 400);
        QCOMPARE(engine.lineOf(engine.caret()), 502);
    }

    void leavingMovesNothing()
    {
        SymbolBench bench(u"<h1>a</h1>\r\n<h1>b</h1>"_s);
        bench.editor.select({0, 2, 0, 4});
        bench.open();
        SymbolBench::press(Qt::Key_Down);
        SymbolBench::press(Qt::Key_Escape);
        QCOMPARE(bench.editor.selection(false), (CodeMaxRange{0, 2, 0, 4}));
        QVERIFY(bench.editor.hasFocus());
    }

    void nothingThere()
    {
        SymbolBench bench(u"text"_s);
        bench.open();
        QCOMPARE(bench.rows(), QStringList{u"Nothing in the document is called so"_s});
        SymbolBench::press(Qt::Key_Return);
        SymbolBench::press(Qt::Key_Escape);
        QVERIFY(bench.editor.hasFocus());
    }
};

ZEPHIRA_TEST(TstGoToSymbol)

#include "tst_gotosymbol.moc"

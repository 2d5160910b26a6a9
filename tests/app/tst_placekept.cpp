// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"
#include "core/linecolumn.h"
#include "panes/sidepane.h"
#include "support/eventwait.h"
#include "support/testregistry.h"

#include <QSignalSpy>
#include <QTreeView>

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// A page in which "|" shows the caret.
struct Marked {
    QString text;
    qsizetype caret = 0;

    explicit Marked(const QString &marked) : text(marked), caret(marked.indexOf(u'|')) { text.remove(caret, 1); }
};

QString paragraphs(int count, QStringView marked = {})
{
    QString page = u"<!DOCTYPE html>\r\n<html>\r\n<head><title>|t</title></head>\r\n<body>\r\n"_s;
    for (int i = 0; i < count; ++i)
        page += u"<p>line %1 of many</p>\r\n"_s.arg(i);
    page += u"</body>\r\n</html>\r\n"_s;
    if (!marked.isEmpty()) {
        page.remove(u'|');
        page.replace(QString(marked.toString()).remove(u'|'), marked.toString());
    }
    return page;
}

} // namespace

/// Going from the code view to the designer and back keeps the place.
class TstPlaceKept : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingGoesToTheCaretsPlace_data();
    void typingGoesToTheCaretsPlace();
    void anUntouchedDesignerLeavesTheCodeAsItWas_data();
    void anUntouchedDesignerLeavesTheCodeAsItWas();
    void theElementIsInView();
    void keysMoveTheCaretInBothDirections();
    void plainTextKeepsItsPlace();
    void thePreviewTakesTheLastLetterToo();
    void goToTagStaysInTheDesigner();
    void whatIsTypedBehindGoToTag_data();
    void whatIsTypedBehindGoToTag();
    void hugePagesKeepNothing();

private:
    static void place(const WebBench &bench, qsizetype caret)
    {
        const LineColumn at = lineColumnOf(bench.window->rt().text(), caret);
        bench.window->rt().select({at.line, at.column, at.line, at.column});
    }
    static qsizetype caretOf(const WebBench &bench)
    {
        const CodeMaxRange range = bench.window->rt().selection(false);
        return indexOf(bench.window->rt().text(), {range.EndLineNo, range.EndColNo});
    }
    /// Presses the key of the next view until a view is selected.
    static void nextView(const WebBench &bench) { bench.choose(u"mnunextview"_s); }
    static bool leave(const WebBench &bench)
    {
        bench.select(1);
        return waitUntil([&] { return bench.find<QWidget>(u"rt"_s)->isVisible(); }, WebBench::patience);
    }
    static void press(const WebBench &bench, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(bench.keyboardOf(u"DHTMLEdit1"_s), key, modifiers);
    }
    /// Selects an entry of the outline.
    static void selectLeaf(const WebBench &bench, const QString &caption);
    static bool focusDesigner(const WebBench &bench)
    {
        QWidget *keyboard = bench.keyboardOf(u"DHTMLEdit1"_s);
        keyboard->setFocus();
        return waitUntil([&] { return keyboard->hasFocus(); }, WebBench::patience);
    }
};

void TstPlaceKept::typingGoesToTheCaretsPlace_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("edited");

    const auto row = [](const char *name, const QString &page, const QString &edited) {
        QTest::newRow(name) << page << edited;
    };
    row("in a word", u"<p>one</p>\r\n<p>tw|o</p>\r\n"_s, u"<p>one</p>\r\n<p>twX|o</p>\r\n"_s);
    row("in bold", u"<p>a <b>bo|ld</b> c</p>\r\n"_s, u"<p>a <b>boX|ld</b> c</p>\r\n"_s);
    row("behind a reference", u"<p>caf&eacute;| &amp; bar</p>\r\n"_s, u"<p>caf&eacute;X| &amp; bar</p>\r\n"_s);
    row("in a start tag", u"<p>one</p>\r\n<p cl|ass=x>two</p>\r\n"_s, u"<p>one</p>\r\n<p class=x>X|two</p>\r\n"_s);
    row("at the beginning of a line", u"<p>one</p>\r\n|<p>two</p>\r\n"_s, u"<p>one</p>\r\n<p>X|two</p>\r\n"_s);
    row("at the end of a line", u"<p>one</p>|\r\n<p>two</p>\r\n"_s, u"<p>oneX|</p>\r\n<p>two</p>\r\n"_s);
    row("unclosed tags", u"<P>one<P>t|wo<UL><LI>a<LI>b</UL>\r\n"_s, u"<P>one<P>tX|wo<UL><LI>a<LI>b</UL>\r\n"_s);
    row("kept lines", u"<pre>\r\nab\r\nc|d\r\n</pre>\r\n"_s, u"<pre>\r\nab\r\ncX|d\r\n</pre>\r\n"_s);
    row("server code", u"<p>a<?= 1 ?>b|c</p>\r\n<p>d</p>\r\n"_s, u"<p>a<?= 1 ?>bX|c</p>\r\n<p>d</p>\r\n"_s);
    row("a cell without a body of rows", u"<table><tr><td>a<tr><td>b|c</table>\r\n"_s,
        u"<table><tr><td>a<tr><td>bX|c</table>\r\n"_s);
    row("a misnested tag", u"<b>x<p>y</b>z</p><p>t|wo</p>\r\n"_s, u"<b>x<p>y</b>z</p><p>tX|wo</p>\r\n"_s);
    row("a stray end tag", u"one</p><p>two</p><p>t|hree</p>\r\n"_s, u"one</p><p>two</p><p>tX|hree</p>\r\n"_s);
    row("in the head", u"<html><head><title>t|</title></head><body><p>one</p></body></html>\r\n"_s,
        u"<html><head><title>t</title></head><body><p>X|one</p></body></html>\r\n"_s);
    row("in a comment", u"<p>one</p><!-- a | note --><p>two</p>\r\n"_s,
        u"<p>oneX|</p><!-- a  note --><p>two</p>\r\n"_s);
    row("behind a script", u"<p>one</p><script>var p = '<p>';</script><p>t|wo</p>\r\n"_s,
        u"<p>one</p><script>var p = '<p>';</script><p>tX|wo</p>\r\n"_s);
}

/// Both ways at once: what is typed in the designer stands where the caret was, and the caret is behind it.
void TstPlaceKept::typingGoesToTheCaretsPlace()
{
    QFETCH(QString, page);
    QFETCH(QString, edited);
    const Marked before(page);
    const Marked after(edited);
    WebBench bench(u"page.html"_s, before.text.toUtf8());
    place(bench, before.caret);
    QVERIFY(bench.design());
    QVERIFY(focusDesigner(bench));
    QTest::keyClicks(bench.keyboardOf(u"DHTMLEdit1"_s), u"X"_s);
    QVERIFY(leave(bench));
    QCOMPARE(bench.window->rt().text(), after.text);
    QCOMPARE(caretOf(bench), after.caret);
}

void TstPlaceKept::anUntouchedDesignerLeavesTheCodeAsItWas_data()
{
    QTest::addColumn<QString>("page");

    QTest::newRow("text") << paragraphs(300, u"line 200| ");
    QTest::newRow("title") << paragraphs(300);
    QTest::newRow("tag") << paragraphs(300).remove(u'|').replace(u"<p>line 150"_s, u"<|p>line 150"_s);
    QTest::newRow("style") << u"<style>p { c|olor: red }</style><p>one</p>\r\n"_s;
    QTest::newRow("script") << u"<p>one</p><script>var |x</script><p>two</p>\r\n"_s;
    QTest::newRow("comment") << u"<p>one</p><!-- |x --><p>two</p>\r\n"_s;
    QTest::newRow("server code") << u"<p>one</p><?php |x ?><p>two</p>\r\n"_s;
    QTest::newRow("frames") << u"<frameset cols='1,2'><frame src=a|><frame src=b></frameset>\r\n"_s;
    QTest::newRow("nested") << u"<div>"_s.repeated(10000) + u"de|ep\r\n"_s;
    QTest::newRow("no end of a comment") << u"<p>one<!-- |x <p>two</p>\r\n"_s;
    QTest::newRow("hidden") << u"<p>one</p><div style='display: none'><p>t|wo</p></div>\r\n"_s;
}

void TstPlaceKept::anUntouchedDesignerLeavesTheCodeAsItWas()
{
    QFETCH(QString, page);
    const Marked before(page);
    WebBench bench(u"page.html"_s, before.text.toUtf8());
    CodeMax &editor = bench.window->rt();
    const LineColumn at = lineColumnOf(before.text, before.caret);
    // Something before the caret is selected, if there is anything.
    const CodeMaxRange range{at.line, std::max(0, at.column - 2), at.line, at.column};
    editor.select(range);
    const auto firstLine = [&] { return editor.engine().send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE); };
    editor.engine().send(QsciScintillaBase::SCI_LINESCROLL, 0, 5);
    const auto first = firstLine();
    bench.select(3);
    // No command tells that a page with frames can be edited.
    const QSignalSpy complete(&bench.designer(), SIGNAL(DocumentComplete()));
    QVERIFY(waitUntil([&] { return complete.count() > 0; }, WebBench::patience));
    QVERIFY(focusDesigner(bench));
    QVERIFY(leave(bench));
    QCOMPARE(editor.text(), before.text);
    QCOMPARE(editor.selection(false), range);
    QCOMPARE(firstLine(), first);
    QVERIFY(!editor.canUndo());
}

void TstPlaceKept::theElementIsInView()
{
    const Marked page(paragraphs(300, u"line 200| "));
    WebBench bench(u"page.html"_s, page.text.toUtf8());
    place(bench, page.caret);
    QVERIFY(bench.design());
    const auto scroll = [&] { return bench.scrollOf(u"DHTMLEdit1"_s).y(); };
    QVERIFY(waitUntil([&] { return scroll() > 1000; }, WebBench::patience));

    // Far away from there in the designer, the code view follows.
    QVERIFY(focusDesigner(bench));
    press(bench, Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(waitUntil([&] { return scroll() < 100; }, WebBench::patience));
    QVERIFY(leave(bench));
    CodeMax &editor = bench.window->rt();
    QCOMPARE(caretOf(bench), page.text.indexOf(u"line 0 "_s));
    const auto &engine = editor.engine();
    QVERIFY(engine.send(QsciScintillaBase::SCI_GETFIRSTVISIBLELINE) <= 4);
}

void TstPlaceKept::keysMoveTheCaretInBothDirections()
{
    const Marked page(u"<p>one</p>\r\n<p>t|wo</p>\r\n<p>three</p>\r\n"_s);
    WebBench bench(u"page.html"_s, page.text.toUtf8());
    place(bench, page.caret);
    // The key of the next view leads to the preview, then to the designer, then back.
    nextView(bench);
    nextView(bench);
    QVERIFY(waitUntil([&] { return bench.status(DesignerCommand::SelectAll) >= DesignerStatus::Enabled; },
                      WebBench::patience));
    QVERIFY(focusDesigner(bench));
    press(bench, Qt::Key_Down);
    press(bench, Qt::Key_Right);
    nextView(bench);
    QVERIFY(waitUntil([&] { return bench.find<QWidget>(u"rt"_s)->isVisible(); }, WebBench::patience));
    QCOMPARE(bench.window->rt().text(), page.text);
    QCOMPARE(caretOf(bench), page.text.indexOf(u"three"_s) + 2);
    // The designer goes on there.
    QVERIFY(bench.design());
    QVERIFY(focusDesigner(bench));
    QTest::keyClicks(bench.keyboardOf(u"DHTMLEdit1"_s), u"X"_s);
    QVERIFY(leave(bench));
    QCOMPARE(bench.window->rt().text(), QString(page.text).replace(u"three"_s, u"thXree"_s));
}

void TstPlaceKept::plainTextKeepsItsPlace()
{
    WebBench bench(u"script.js"_s, "var a;\r\nvar b;\r\nvar c;\r\n");
    const QString before = bench.window->rt().text();
    place(bench, before.indexOf(u"b;"_s));
    QVERIFY(bench.design());
    QVERIFY(focusDesigner(bench));
    QTest::keyClicks(bench.keyboardOf(u"DHTMLEdit1"_s), u"X"_s);
    QVERIFY(leave(bench));
    QCOMPARE(bench.window->rt().text(), QString(before).replace(u"b;"_s, u"Xb;"_s));
    QCOMPARE(caretOf(bench), before.indexOf(u"b;"_s) + 1);
}

/// The preview is made while the page still handles the keys.
void TstPlaceKept::thePreviewTakesTheLastLetterToo()
{
    const QString page = u"<title>t</title><p>one</p>\r\n<p>two</p>\r\n"_s;
    WebBench bench(u"page.html"_s, page.toUtf8());
    QVERIFY(bench.design());
    QVERIFY(focusDesigner(bench));
    press(bench, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(bench.keyboardOf(u"DHTMLEdit1"_s), u"X"_s);
    QVERIFY(bench.preview(u"t"_s));
    QVERIFY(leave(bench));
    QCOMPARE(bench.window->rt().text(), QString(page).replace(u"two"_s, u"twoX"_s));
}

void TstPlaceKept::selectLeaf(const WebBench &bench, const QString &caption)
{
    const auto *sides = bench.find<QTabBar>(u"Frame1"_s);
    for (int tab = 0; tab < sides->count(); ++tab) {
        if (sides->tabData(tab).toString() == u"documenttree")
            bench.window->sidePane().click(tab);
    }
    auto *tree = bench.find<QTreeView>(u"TreeView1"_s);
    const QModelIndexList leaves = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, caption, 1,
                                                        Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(leaves.size(), 1);
    tree->setCurrentIndex(leaves.front());
}

void TstPlaceKept::goToTagStaysInTheDesigner()
{
    QString page = paragraphs(200).remove(u'|');
    page.replace(u"line 150 of"_s, u"<a href=there>line</a> 150 of"_s);
    WebBench bench(u"page.html"_s, page.toUtf8());
    selectLeaf(bench, u"there"_s);
    QVERIFY(bench.design());
    bench.choose(u"goToTag"_s);
    QCOMPARE(bench.tabs().currentIndex(), 2);
    QVERIFY(waitUntil([&] { return bench.scrollOf(u"DHTMLEdit1"_s).y() > 500; }, WebBench::patience));
    QVERIFY(waitUntil([&] { return bench.keyboardOf(u"DHTMLEdit1"_s)->hasFocus(); }, WebBench::patience));
}

void TstPlaceKept::whatIsTypedBehindGoToTag_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("edited");
    const auto row = [](const char *name, const QString &page, const QString &caption, const QString &edited) {
        QTest::newRow(name) << page << caption << edited;
    };
    row("a link", u"<p>one</p>\r\n<p>a <a href=there>two</a> b</p>\r\n"_s, u"there"_s,
        u"<p>one</p>\r\n<p>a XY<a href=there>two</a> b</p>\r\n"_s);
    row("a link far below", paragraphs(200).remove(u'|').replace(u"line 150 of"_s, u"<a href=there>line</a> 150 of"_s),
        u"there"_s, paragraphs(200).remove(u'|').replace(u"line 150 of"_s, u"XY<a href=there>line</a> 150 of"_s));
}

void TstPlaceKept::whatIsTypedBehindGoToTag()
{
    QFETCH(QString, page);
    QFETCH(QString, caption);
    WebBench bench(u"page.html"_s, page.toUtf8());
    selectLeaf(bench, caption);
    QVERIFY(bench.design());
    bench.choose(u"goToTag"_s);
    QTest::keyClicks(bench.keyboardOf(u"DHTMLEdit1"_s), u"XY"_s);
    QVERIFY(leave(bench));
    QTEST(bench.window->rt().text(), "edited");
}

void TstPlaceKept::hugePagesKeepNothing()
{
    constexpr int most = 4'000'000;
    QString page = u"<p>one</p>\r\n"_s;
    page += u"<!-- %1 -->\r\n<p>two</p>\r\n"_s.arg(QString(most, u'x'));
    WebBench bench(u"page.html"_s, page.toUtf8());
    const qsizetype caret = page.indexOf(u"two"_s) + 1;
    place(bench, caret);
    QVERIFY(bench.design());
    QVERIFY(focusDesigner(bench));
    press(bench, Qt::Key_Right);
    QVERIFY(leave(bench));
    QCOMPARE(caretOf(bench), caret);
}

ZEPHIRA_TEST(TstPlaceKept)
#include "tst_placekept.moc"

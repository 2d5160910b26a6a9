// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QLineEdit>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The effect of keys in paragraphs, lists, cells and headings; each is undone and redone.
class TstDesignerTyping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void keys_data();
    void keys();
    void commentsOutliveAJoin();
    void keysComeWithTheFocus();

private:
    /// "Enter", "Shift+Enter", "Backspace", "Delete", "Control+Backspace", or a text.
    void press(const QString &key);
    void turnAll(DesignerCommand command);

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerTyping::keys_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("after");
    const auto row = [](const QByteArray &name, const QString &before, const QStringList &keys, const QString &after) {
        QTest::newRow(name.constData()) << before << keys << after;
    };
    row("a new paragraph", u"<p>ab|cd</p>"_s, {u"Enter"_s, u"x"_s}, u"<p>ab</p><p>x|cd</p>"_s);
    row("its id stays with the first", u"<p id=\"i\" class=\"c\">ab|</p>"_s, {u"Enter"_s, u"x"_s},
        u"<p id=\"i\" class=\"c\">ab</p><p class=\"c\">x|</p>"_s);
    // What lays out the source, and isn't seen, stays.
    row("before a line end", u"<p>ab|\n</p>\n<p>c</p>"_s, {u"x"_s, u"y"_s}, u"<p>abxy|\n</p>\n<p>c</p>"_s);
    row("behind a line end", u"<p>\n  |ab\n</p>"_s, {u"x"_s, u"y"_s}, u"<p>\n  xy|ab\n</p>"_s);
    row("before a line end, in bold", u"<p>a <b>b|</b>\n</p>"_s, {u"x"_s}, u"<p>a <b>bx|</b>\n</p>"_s);
    row("a blank before a line end", u"<p>ab|\n</p>"_s, {u" "_s, u"c"_s}, u"<p>ab c|\n</p>"_s);
    row("in a cell", u"<table><tbody><tr>\n<td>ab|\n</td>\n</tr></tbody></table>"_s, {u"x"_s},
        u"<table><tbody><tr>\n<td>abx|\n</td>\n</tr></tbody></table>"_s);
    row("behind a blank that is seen", u"<p>ab |<b>c</b></p>"_s, {u"x"_s}, u"<p>ab x|<b>c</b></p>"_s);
    row("before a blank that is seen", u"<p>ab| <b>c</b></p>"_s, {u"x"_s}, u"<p>abx| <b>c</b></p>"_s);
    row("behind a line end that is seen", u"<pre>a\n|b\n</pre>"_s, {u"x"_s}, u"<pre>a\nx|b\n</pre>"_s);
    row("a letter deleted before a line end", u"<p>abc|\n</p>\n<p>d</p>"_s, {u"Backspace"_s},
        u"<p>ab|\n</p>\n<p>d</p>"_s);
    row("a letter deleted behind a line end", u"<p>\n  |abc\n</p>"_s, {u"Delete"_s}, u"<p>\n  |bc\n</p>"_s);
    row("a letter deleted before a blank", u"<p>ab| <b>c</b></p>"_s, {u"Backspace"_s}, u"<p>a| <b>c</b></p>"_s);
    row("a word deleted before a line end", u"<p>a [word]\n</p>"_s, {u"Backspace"_s}, u"<p>a&nbsp;|\n</p>"_s);
    row("a selection before a line end", u"<p>a[bc]\n</p>"_s, {u"Delete"_s}, u"<p>a|\n</p>"_s);
    row("a selection replaced before a line end", u"<p>a[bc]\n</p>"_s, {u"x"_s}, u"<p>ax|\n</p>"_s);
    row("a line break", u"<p>ab|cd</p>"_s, {u"Shift+Enter"_s, u"x"_s}, u"<p>ab<br>x|cd</p>"_s);
    row("a line break at the end", u"<p>ab|</p>"_s, {u"Shift+Enter"_s, u"x"_s}, u"<p>ab<br>x|</p>"_s);
    row("after a heading", u"<h1>ab|</h1>"_s, {u"Enter"_s, u"x"_s}, u"<h1>ab</h1><p>x|</p>"_s);
    row("within a heading", u"<h1>a|b</h1>"_s, {u"Enter"_s}, u"<h1>a</h1><h1>|b</h1>"_s);
    row("an empty page", u"|"_s, {u"a"_s, u"Enter"_s, u"b"_s}, u"<p>a</p><p>b|</p>"_s);
    row("bare text", u"ab|cd<hr>"_s, {u"Enter"_s}, u"<p>ab</p><p>|cd</p><hr>"_s);
    row("after a coloured word", u"<p><font color=\"red\">a|</font></p>"_s, {u"Enter"_s, u"x"_s},
        u"<p><font color=\"red\">a</font></p><p><font color=\"red\">x|</font></p>"_s);
    row("after a link", u"<p><a href=\"x\">a|</a></p>"_s, {u"Enter"_s, u"x"_s},
        u"<p><a href=\"x\">a</a></p><p>x|</p>"_s);
    // No empty element remains of a bold link, and what is typed behind it is plain.
    const QString boldLink = u"<p><b><a href=\"x\">%1</a></b></p>"_s;
    const QString linkedBold = u"<p><a href=\"x\"><b>%1</b></a></p>"_s;
    for (const QString &link : {boldLink, linkedBold}) {
        const QByteArray which = link == boldLink ? "a bold link" : "a linked bold";
        row("behind " + which, link.arg(u"ab|"_s), {u"Enter"_s, u"x"_s}, link.arg(u"ab"_s) + u"<p>x|</p>"_s);
        row("twice behind " + which, link.arg(u"ab|"_s), {u"Enter"_s, u"Enter"_s, u"x"_s},
            link.arg(u"ab"_s) + u"<p><br></p><p>x|</p>"_s);
        row("within " + which, link.arg(u"a|b"_s), {u"Enter"_s}, link.arg(u"a"_s) + link.arg(u"|b"_s));
        row("before " + which, link.arg(u"|ab"_s), {u"Enter"_s}, u"<p><br></p>"_s + link.arg(u"|ab"_s));
        row("behind it and back, " + which, link.arg(u"ab|"_s), {u"Enter"_s, u"Backspace"_s},
            link.arg(u"ab"_s).replace(u"</p>"_s, u"|</p>"_s));
        row("a part of " + which, link.arg(u"a[b]"_s), {u"Enter"_s}, link.arg(u"a"_s) + u"<p>|<br></p>"_s);
        row("bare, " + which, link.arg(u"ab|"_s).mid(3).chopped(4) + u"<hr>"_s, {u"Enter"_s, u"x"_s},
            link.arg(u"ab"_s) + u"<p>x|</p><hr>"_s);
        row("before text, " + which, link.arg(u"ab|"_s).replace(u"</p>"_s, u"c</p>"_s), {u"Enter"_s},
            link.arg(u"ab"_s) + u"<p>|c</p>"_s);
        row("behind text, " + which, link.arg(u"|ab"_s).replace(u"<p>"_s, u"<p>c"_s), {u"Enter"_s},
            u"<p>c</p>"_s + link.arg(u"|ab"_s));
    }
    row("a bold link in a bold text", u"<p><b>a <a href=\"x\">b|</a> c</b></p>"_s, {u"Enter"_s, u"x"_s},
        u"<p><b>a <a href=\"x\">b</a></b></p><p><b>x|c</b></p>"_s);
    row("the name of a bold link", u"<p><b><a id=\"i\" href=\"x\">|ab</a></b></p>"_s, {u"Enter"_s},
        u"<p><br></p><p><b><a id=\"i\" href=\"x\">|ab</a></b></p>"_s);
    row("before a link", u"<p><a href=\"x\">|ab</a></p>"_s, {u"Enter"_s}, u"<p><br></p><p><a href=\"x\">|ab</a></p>"_s);
    const QString bold = u"<p><b>%1</b></p>"_s;
    row("behind bold text", bold.arg(u"ab|"_s), {u"Enter"_s, u"x"_s}, bold.arg(u"ab"_s) + bold.arg(u"x|"_s));
    row("in bold text", bold.arg(u"a|b"_s), {u"Enter"_s, u"x"_s}, bold.arg(u"a"_s) + bold.arg(u"x|b"_s));
    row("before bold text", bold.arg(u"|ab"_s), {u"Enter"_s}, bold.arg(u"<br>"_s) + bold.arg(u"|ab"_s));
    row("a new item", u"<ul><li>a|</li></ul>"_s, {u"Enter"_s, u"b"_s}, u"<ul><li>a</li><li>b|</li></ul>"_s);
    row("out of a list", u"<ul><li>a|</li></ul>"_s, {u"Enter"_s, u"Enter"_s, u"b"_s},
        u"<ul><li>a</li></ul><p>b|</p>"_s);
    row("a line break in an item", u"<ul><li>a|b</li></ul>"_s, {u"Shift+Enter"_s}, u"<ul><li>a<br>|b</li></ul>"_s);
    row("a new term", u"<dl><dt>a|</dt></dl>"_s, {u"Enter"_s, u"x"_s}, u"<dl><dt>a</dt><dt>x|</dt></dl>"_s);
    row("in a quotation", u"<blockquote>a|</blockquote>"_s, {u"Enter"_s, u"b"_s},
        u"<blockquote><p>a</p><p>b|</p></blockquote>"_s);
    row("in a box", u"<div style=\"position: absolute\">a|b</div>"_s, {u"Enter"_s},
        u"<div style=\"position: absolute\"><p>a</p><p>|b</p></div>"_s);
    row("in a division with a name", u"<div class=\"x\">a|b</div>"_s, {u"Enter"_s},
        u"<div class=\"x\"><p>a</p><p>|b</p></div>"_s);
    row("in a division that is a line", u"<div>a|b</div>"_s, {u"Enter"_s}, u"<div>a</div><div>|b</div>"_s);
    row("in formatted text", u"<pre>a|b</pre>"_s, {u"Enter"_s, u"x"_s}, u"<pre>a\nx|b</pre>"_s);
    const QString cell = u"<table><tbody><tr><td>%1</td><td>c</td></tr></tbody></table>"_s;
    row("in a cell", cell.arg(u"a|b"_s), {u"Enter"_s}, cell.arg(u"<p>a</p><p>|b</p>"_s));
    row("in an empty cell", cell.arg(u"|<br>"_s), {u"x"_s, u"Enter"_s, u"y"_s}, cell.arg(u"<p>x</p><p>y|</p>"_s));
    row("a line break in a cell", cell.arg(u"ab|"_s), {u"Shift+Enter"_s, u"x"_s}, cell.arg(u"ab<br>x|"_s));
    row("in the place of a selection", u"<p>a[b]c</p>"_s, {u"Enter"_s}, u"<p>a</p><p>|c</p>"_s);

    row("back into a heading",
        u"<h1 id=\"h\">a</h1><p class=\"c\">|b <b>c</b> <span style=\"COLOR: red\" class=\"k\">d</span></p>"_s,
        {u"Backspace"_s}, u"<h1 id=\"h\">a|b <b>c</b> <span style=\"COLOR: red\" class=\"k\">d</span></h1>"_s);
    // It is moved into the head, out of the way.
    const QString styles =
        u"<link rel=\"stylesheet\" href=\"data:text/css,h1%7Bfont-size:40px;color:red%7Dp,li%7Bcolor:blue%7D\">"_s;
    row("styles of a style sheet", styles + u"<h1>a|</h1><p>b <b>c</b></p>"_s, {u"Delete"_s},
        u"<h1>a|b <b>c</b></h1>"_s);
    row("an item into a heading", styles + u"<h1>x</h1><ul><li>|a</li><li>b</li></ul>"_s, {u"Backspace"_s},
        u"<h1>x|a</h1><ul><li>b</li></ul>"_s);
    row("into a division", styles + u"<div><h1>x</h1></div><p>|a</p>"_s, {u"Backspace"_s},
        u"<div><h1>x|a</h1></div>"_s);
    row("bare text into a heading", styles + u"<h1>a</h1>|b"_s, {u"Backspace"_s}, u"<h1>a|b</h1>"_s);
    row("into bare text", styles + u"a<p>|b</p>c"_s, {u"Backspace"_s}, u"a|b<br>c"_s);
    row("items", u"<ul><li>a</li><li>|b</li></ul>"_s, {u"Backspace"_s}, u"<ul><li>a|b</li></ul>"_s);
    row("a paragraph into an item", u"<ul><li>a</li></ul><p>|b</p>"_s, {u"Backspace"_s}, u"<ul><li>a|b</li></ul>"_s);
    row("the last item into a paragraph", u"<p>a|</p><ul><li>b</li></ul><p>c</p>"_s, {u"Delete"_s},
        u"<p>a|b</p><p>c</p>"_s);
    row("an empty paragraph before", u"<p>|<br></p><h1 id=\"h\">c</h1>"_s, {u"Delete"_s}, u"<h1 id=\"h\">|c</h1>"_s);
    row("an empty paragraph after it", u"<p>a</p><p>|<br></p><p>c</p>"_s, {u"Backspace"_s}, u"<p>a|</p><p>c</p>"_s);
    row("blanks where two meet", u"<p>a\n</p>\n<p>\n|b</p>"_s, {u"Backspace"_s}, u"<p>a|b</p>\n"_s);
    row("a table in front", u"<table><tbody><tr><td>a</td></tr></tbody></table><p class=\"k\">|y</p>"_s,
        {u"Backspace"_s}, u"{<table><tbody><tr><td>a</td></tr></tbody></table><p class=\"k\">y</p>"_s);
    row("that table", u"<table><tbody><tr><td>a</td></tr></tbody></table><p class=\"k\">|y</p>"_s,
        {u"Backspace"_s, u"Backspace"_s}, u"<p class=\"k\">|y</p>"_s);
    row("not out of a cell", cell.arg(u"a</td><td>|b"_s), {u"Backspace"_s, u"x"_s}, cell.arg(u"a</td><td>x|b"_s));
    row("a selection over two", styles + u"<h1>a[x</h1><p>b]<i>c</i></p>"_s, {u"Backspace"_s},
        u"<h1>a|<i>c</i></h1>"_s);
    row("a selection into a division", styles + u"<h1>a[x</h1><div><p>b]c</p></div>"_s, {u"Delete"_s},
        u"<h1>a|c</h1>"_s);
    row("a selection over cells", cell.arg(u"a[b</td><td>c]d"_s), {u"Backspace"_s}, cell.arg(u"a|</td><td>d"_s));
    row("typing over two", styles + u"<h1>a[x</h1><p>b]c</p>"_s, {u"y"_s, u"z"_s}, u"<h1>ayz|c</h1>"_s);
    row("an element", u"<p>a{<img src=\"x\">b</p>"_s, {u"Backspace"_s}, u"<p>a|b</p>"_s);
    row("typing over an element", u"<p>a{<img src=\"x\">b</p>"_s, {u"x"_s}, u"<p>ax|b</p>"_s);
    row("a whole heading", styles + u"<h1>[ab</h1><p>]c</p>"_s, {u"Backspace"_s}, u"<p>|c</p>"_s);
    row("the author's spans into bare text", styles + u"a<p>|<span style=\"color: green\">b</span></p>"_s,
        {u"Backspace"_s}, u"a|<span style=\"color: green\">b</span>"_s);
    row("the whole page", u"<p>[a</p><p>b]</p>"_s, {u"Backspace"_s, u"x"_s}, u"<p>x|</p>"_s);
    row("a word", u"<p>a word|</p>"_s, {u"Control+Backspace"_s}, u"<p>a&nbsp;|</p>"_s);
}

void TstDesignerTyping::press(const QString &key)
{
    struct Row {
        QStringView name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const Row rows[] = {
        {u"Enter", Qt::Key_Return, Qt::NoModifier},
        {u"Shift+Enter", Qt::Key_Return, Qt::ShiftModifier},
        {u"Backspace", Qt::Key_Backspace, Qt::NoModifier},
        {u"Delete", Qt::Key_Delete, Qt::NoModifier},
        {u"Control+Backspace", Qt::Key_Backspace, Qt::ControlModifier},
    };
    const auto row = std::ranges::find(rows, key, &Row::name);
    if (row == std::end(rows))
        m_bench->type(key);
    else
        m_bench->press(row->key, row->modifiers);
}

void TstDesignerTyping::turnAll(DesignerCommand command)
{
    while (m_bench->status(command) == DesignerStatus::Enabled)
        m_bench->run(command);
}

void TstDesignerTyping::keys()
{
    QFETCH(QString, before);
    QFETCH(QStringList, keys);
    QFETCH(QString, after);
    m_bench->show(before);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"document.readyState"_s).toString(), u"complete"_s,
                              DesignerBench::patience);
    const QString untouched = m_bench->body();
    for (const QString &key : std::as_const(keys))
        press(key);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->text(), after, DesignerBench::patience);
    const QString changed = m_bench->body();
    turnAll(DesignerCommand::Undo);
    QCOMPARE(m_bench->body(), untouched);
    QVERIFY(!m_bench->designer.isDirty());
    turnAll(DesignerCommand::Redo);
    QCOMPARE(m_bench->body(), changed);
}

void TstDesignerTyping::commentsOutliveAJoin()
{
    m_bench->load(u"<p>a<!-- one --></p><!-- two --><p>b<% three %><!-- four -->c</p>"_s);
    m_bench->ask(u"getSelection().collapse(document.body.lastChild, 0); null"_s);
    m_bench->press(Qt::Key_Backspace);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.documentHtml(),
                              u"<p>a<!-- one -->b<% three %><!-- four -->c</p><!-- two -->"_s, DesignerBench::patience);
}

/// The page is loaded, and its selection changed, while another control has the focus.
void TstDesignerTyping::keysComeWithTheFocus()
{
    QWidget window;
    QLineEdit other(&window);
    const std::unique_ptr<QWidget, void (*)(QWidget *)> designer(&m_bench->designer, [](QWidget *widget) {
        widget->setParent(nullptr);
        widget->show();
    });
    designer->setParent(&window);
    designer->setGeometry(0, 50, 600, 400);
    designer->show();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    m_bench->load(u"<p>a</p><p>b</p>"_s);
    designer->setFocus();
    m_bench->type(u"Z"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>Za</p><p>b</p>"_s, DesignerBench::patience);
    other.setFocus();
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->ask(u"document.hasFocus()"_s).toBool(), false, DesignerBench::patience);
    m_bench->ask(u"getSelection().collapse(document.body.lastChild, 0); null"_s);
    designer->setFocus();
    m_bench->type(u"Y"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>Za</p><p>Yb</p>"_s, DesignerBench::patience);
}

ZEPHIRA_TEST(TstDesignerTyping)
#include "tst_designertyping.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/designerbench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Programs, style sheets and notes in the designer: they are edited as plain text.
class TstDesignerPlainText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void typing_data();
    void typing();
    void untouched();
    void shownAsItStands();
    void commands();
    void pasting();
    void copying();
    void deletingAll();
    void byValue();
    void pageAfterText();

private:
    DesignerWidget &designer() { return m_bench->designer; }
    void load(const QByteArray &content, const QString &name = u"a.txt"_s);
    /// Selects a range in the text of the only element, in characters.
    void select(int from, int to);

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerPlainText::load(const QByteArray &content, const QString &name)
{
    designer().LoadDocument(m_bench->write(name, content));
    m_bench->awaitComplete();
}

void TstDesignerPlainText::select(int from, int to)
{
    m_bench->ask(u"{ const text = document.querySelector('pre').firstChild;"
                 "getSelection().setBaseAndExtent(text, %1, text, %2); } null"_s.arg(from)
                     .arg(to));
}

void TstDesignerPlainText::typing_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const QByteArray &before, int from, int to, const QStringList &keys,
                        const QString &after) { QTest::newRow(name) << before << from << to << keys << after; };
    row("signs of markup", "#include <stdio.h>\r\nif (1 < 2 && b) { }\r\n", 0, 0, {u"x"_s},
        u"x#include <stdio.h>\r\nif (1 < 2 && b) { }\r\n"_s);
    row("references", "&amp; &lt; &nbsp;<!-- a --><% b %>", 0, 0, {u"x"_s}, u"x&amp; &lt; &nbsp;<!-- a --><% b %>"_s);
    row("blanks", "  a  b\t\tc  \n\n\n", 2, 2, {u" "_s, u" "_s}, u"    a  b\t\tc  \r\n\r\n\r\n"_s);
    row("a line end", "ab", 1, 1, {u"\n"_s, u"x"_s}, u"a\r\nxb"_s);
    row("a line end with Shift", "ab", 1, 1, {u"Shift\n"_s, u"x"_s}, u"a\r\nxb"_s);
    row("a line end at the end", "ab", 2, 2, {u"\n"_s}, u"ab\r\n"_s);
    row("line ends at the end", "ab", 2, 2, {u"\n"_s, u"\n"_s, u"c"_s, u"\n"_s}, u"ab\r\n\r\nc\r\n"_s);
    row("after the last line end", "ab\r\n", 3, 3, {u"c"_s}, u"ab\r\nc"_s);
    row("a line end in place of text", "abcd", 1, 3, {u"\n"_s}, u"a\r\nd"_s);
    row("text in place of lines", "a\r\nb\r\nc", 1, 4, {u"x"_s}, u"axc"_s);
    row("a tabulator", "ab", 1, 1, {u"\t"_s, u"x"_s}, u"a\txb"_s);
    row("backwards over a line end", "a\r\nb", 2, 2, {u"\b"_s}, u"ab"_s);
    row("into nothing", "", 0, 0, {u"a"_s, u"\n"_s, u"b"_s}, u"a\r\nb"_s);
    row("all taken out", "a", 0, 1, {u"\b"_s}, u""_s);
    row("a first line that is empty", "\n\na", 0, 0, {u"x"_s}, u"x\r\n\r\na"_s);
    row("a byte order mark",
        "\xef\xbb\xbf"
        "a",
        1, 1, {u"x"_s}, u"ax"_s);
}

void TstDesignerPlainText::typing()
{
    QFETCH(QByteArray, before);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QStringList, keys);
    QFETCH(QString, after);
    load(before);
    const QString loaded = designer().documentHtml();
    select(from, to);
    for (const QString &key : std::as_const(keys)) {
        if (key == u"\n" || key == u"Shift\n")
            m_bench->press(Qt::Key_Return, key == u"\n" ? Qt::NoModifier : Qt::ShiftModifier);
        else if (key == u"\t")
            m_bench->press(Qt::Key_Tab);
        else if (key == u"\b")
            m_bench->press(Qt::Key_Backspace);
        else
            m_bench->type(key);
    }
    QVERIFY(designer().isDirty());
    QCOMPARE(designer().documentHtml(), after);
    while (m_bench->status(DesignerCommand::Undo) >= 3)
        m_bench->run(DesignerCommand::Undo);
    QCOMPARE(designer().documentHtml(), loaded);
    while (m_bench->status(DesignerCommand::Redo) >= 3)
        m_bench->run(DesignerCommand::Redo);
    QCOMPARE(designer().documentHtml(), after);
}

void TstDesignerPlainText::untouched()
{
    load("body { color: red }\nb\r\n", u"a.css"_s);
    QCOMPARE(designer().documentHtml(), u"body { color: red }\nb\r\n"_s);
    QVERIFY(!designer().isDirty());
}

void TstDesignerPlainText::shownAsItStands()
{
    load("<b>a</b>\n  <script>b</script>", u"a.js"_s);
    QCOMPARE(m_bench->ask(u"document.querySelector('pre').textContent"_s).toString(),
             u"<b>a</b>\n  <script>b</script>"_s);
    QCOMPARE(m_bench->ask(u"getComputedStyle(document.querySelector('pre')).whiteSpace"_s).toString(), u"pre-wrap"_s);
}

/// Commands that produce markup are disabled, and don't run.
void TstDesignerPlainText::commands()
{
    load("ab");
    select(0, 2);
    for (const DesignerCommand command : {DesignerCommand::Copy, DesignerCommand::Cut, DesignerCommand::SelectAll,
                                          DesignerCommand::FindText, DesignerCommand::Delete})
        QCOMPARE(m_bench->status(command), 3);
    for (const DesignerCommand command :
         {DesignerCommand::Bold, DesignerCommand::Image, DesignerCommand::InsertTable, DesignerCommand::SetBlockFormat,
          DesignerCommand::SetFontName, DesignerCommand::GetFontName, DesignerCommand::GetBlockFormat,
          DesignerCommand::Font, DesignerCommand::OrderedList, DesignerCommand::JustifyCenter,
          DesignerCommand::AbsolutePosition})
        QCOMPARE(m_bench->status(command), 1);
    m_bench->run(DesignerCommand::Bold);
    m_bench->press(Qt::Key_B, Qt::ControlModifier);
    m_bench->type(u"x"_s);
    QCOMPARE(designer().documentHtml(), u"x"_s);
    QCOMPARE(designer().ExecCommand(5013).toString(), QString());
}

/// Markup from the program or from the clipboard is inserted as plain text.
void TstDesignerPlainText::pasting()
{
    load("ab");
    select(1, 1);
    designer().pasteHtml(u"<b>1 < 2</b>\r\n<% x %>"_s);
    QCOMPARE(designer().documentHtml(), u"a<b>1 < 2</b>\r\n<% x %>b"_s);
    auto data = std::make_unique<QMimeData>();
    data->setHtml(u"<i>c</i>"_s);
    data->setText(u"c\nd"_s);
    QGuiApplication::clipboard()->setMimeData(data.release());
    m_bench->run(DesignerCommand::Paste);
    QCOMPARE(designer().documentHtml(), u"a<b>1 < 2</b>\r\n<% x %>c\r\ndb"_s);
}

void TstDesignerPlainText::copying()
{
    load("a<b>\r\n  c");
    select(1, 7);
    m_bench->run(DesignerCommand::Cut);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->text().remove(u'\r'), u"<b>\n  "_s);
    QVERIFY(!data->hasHtml());
    QCOMPARE(designer().documentHtml(), u"ac"_s);
    m_bench->run(DesignerCommand::Paste);
    QCOMPARE(designer().documentHtml(), u"a<b>\r\n  c"_s);
}

void TstDesignerPlainText::deletingAll()
{
    load("a\r\nb");
    m_bench->run(DesignerCommand::SelectAll);
    m_bench->press(Qt::Key_Delete);
    QCOMPARE(designer().documentHtml(), QString());
    m_bench->type(u"x  y"_s);
    m_bench->press(Qt::Key_Return);
    m_bench->type(u"z"_s);
    QCOMPARE(designer().documentHtml(), u"x  y\r\nz"_s);
    m_bench->run(DesignerCommand::SelectAll);
    designer().pasteHtml(u"new"_s);
    QCOMPARE(designer().documentHtml(), u"new"_s);
}

/// A text that is passed by value has the kind of the document that it belongs to.
void TstDesignerPlainText::byValue()
{
    designer().setBaseFile(m_bench->folder.filePath(u"a.c"_s));
    m_bench->load(u"1 < 2"_s);
    designer().pasteHtml(u"&"_s);
    QCOMPARE(designer().documentHtml(), u"&1 < 2"_s);
    designer().setBaseFile({});
    m_bench->load(u"<p>a</p>"_s);
    QCOMPARE(m_bench->body(), u"<p>a</p>"_s);
}

void TstDesignerPlainText::pageAfterText()
{
    load("a");
    load("<p>a</p>", u"a.html"_s);
    m_bench->ask(u"getSelection().collapse(document.querySelector('p').firstChild, 1); null"_s);
    QCOMPARE(m_bench->status(DesignerCommand::Bold), 3);
    m_bench->press(Qt::Key_Return);
    m_bench->type(u"b"_s);
    QCOMPARE(designer().documentHtml(), u"<p>a</p><p>b</p>"_s);
}

ZEPHIRA_TEST(TstDesignerPlainText)
#include "tst_designerplaintext.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/typedpairs.h"
#include "assist/selectionmarks.h"
#include "core/usersettings.h"
#include "editor/idlecolouring.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Types into a control whose helpers have started, in HTML at first.
struct TypingBench : AssistFixture {
    explicit TypingBench(const QString &language = u"HTML"_s)
    {
        show();
        helpers.start();
        editor.setLanguage(language);
    }

    /// A line feed is the Return key, "\b" the Backspace key, and a tab the Tab key.
    void keys(const QString &text)
    {
        for (const QChar c : text) {
            const int key = c == u'\n' ? Qt::Key_Return : c == u'\b' ? Qt::Key_Backspace : c == u'\t' ? Qt::Key_Tab : 0;
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, c == u'\n' ? u"\r"_s : QString(c));
            QCoreApplication::sendEvent(&editor, &press);
        }
    }

    QString afterKeys(const QString &before, const QString &typed)
    {
        setSelected(*this, before);
        keys(typed);
        return selected(*this);
    }
};

} // namespace

/// What happens to pairs while one types.
class TstTypedPairs : public QObject
{
    Q_OBJECT

private:
    static void columns()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("after");
    }

    static void checkRow(bool closes = false)
    {
        QFETCH(QString, language);
        QFETCH(QString, before);
        QFETCH(QString, keys);
        TypingBench bench(language);
        bench.helpers.typedPairs().setCloses(closes);
        QTEST(bench.afterKeys(before, keys), "after");
    }

private Q_SLOTS:
    void closingTags_data()
    {
        columns();
        // clang-format off: a row a line
        QTest::newRow("innermost") << u"HTML"_s << u"<div><b>x|"_s << u"</"_s << u"<div><b>x</b>|"_s;
        QTest::newRow("next outer") << u"HTML"_s << u"<div><b>x</b>|"_s << u"</"_s << u"<div><b>x</b></div>|"_s;
        QTest::newRow("as written") << u"HTML"_s << u"<DIV>|"_s << u"</"_s << u"<DIV></DIV>|"_s;
        QTest::newRow("nothing open") << u"HTML"_s << u"<b>x</b>|"_s << u"</"_s << u"<b>x</b></|"_s;
        QTest::newRow("no tag at all") << u"HTML"_s << u"|"_s << u"</"_s << u"</|"_s;
        QTest::newRow("void elements") << u"HTML"_s << u"<p>a<br>b<img src=c>|"_s << u"</"_s
                                       << u"<p>a<br>b<img src=c></p>|"_s;
        QTest::newRow("void in XML") << u"XML"_s << u"<p>a<br>b<i/>|"_s << u"</"_s << u"<p>a<br>b<i/></br>|"_s;
        QTest::newRow("optional end") << u"HTML"_s << u"<ul><li>a<li>b|"_s << u"</"_s << u"<ul><li>a<li>b</li>|"_s;
        QTest::newRow("after an optional end")
            << u"HTML"_s << u"<p>a<div>b</div>|"_s << u"</"_s << u"<p>a<div>b</div></|"_s;
        QTest::newRow("cells") << u"HTML"_s << u"<table><tr><td>a<td>b</td>|"_s << u"</"_s
                               << u"<table><tr><td>a<td>b</td></tr>|"_s;
        QTest::newRow("names with colons") << u"XML"_s << u"<a:b-c.d>|"_s << u"</"_s << u"<a:b-c.d></a:b-c.d>|"_s;
        QTest::newRow("before text") << u"HTML"_s << u"<b>x|yz"_s << u"</"_s << u"<b>x</b>|yz"_s;
        QTest::newRow("behind a comment") << u"HTML"_s << u"<b><!-- c -->|"_s << u"</"_s << u"<b><!-- c --></b>|"_s;
        QTest::newRow("behind a server block") << u"HTML"_s << u"<b><%= 1 %>|"_s << u"</"_s << u"<b><%= 1 %></b>|"_s;
        QTest::newRow("title") << u"HTML"_s << u"<head><title>x|"_s << u"</"_s << u"<head><title>x</title>|"_s;
        QTest::newRow("two carets") << u"HTML"_s << u"<b>x|\r\n<i>y|"_s << u"</"_s << u"<b>x</b>|\r\n<i>y</i>|"_s;
        QTest::newRow("in a script") << u"HTML"_s << u"<b><script>x|"_s << u"</"_s << u"<b><script>x</|"_s;
        QTest::newRow("in a style sheet") << u"HTML"_s << u"<style>x|"_s << u"</"_s << u"<style>x</|"_s;
        QTest::newRow("in a comment") << u"HTML"_s << u"<b><!-- x|"_s << u"</"_s << u"<b><!-- x</|"_s;
        QTest::newRow("in a server block") << u"HTML"_s << u"<b><% x|"_s << u"</"_s << u"<b><% x</|"_s;
        QTest::newRow("in a PHP block") << u"HTML"_s << u"<b><?php x|"_s << u"</"_s << u"<b><?php x</|"_s;
        QTest::newRow("in a value") << u"HTML"_s << u"<b title=\"x|\">"_s << u"</"_s << u"<b title=\"x</|\">"_s;
        QTest::newRow("in a section") << u"XML"_s << u"<b><![CDATA[ x|"_s << u"</"_s << u"<b><![CDATA[ x</|"_s;
        QTest::newRow("not in C") << u"C/C++"_s << u"a <b> c|"_s << u"</"_s << u"a <b> c</|"_s;
        QTest::newRow("not without a bracket") << u"HTML"_s << u"<b>x|"_s << u"/"_s << u"<b>x/|"_s;
        // What is typed on.
        QTest::newRow("in full") << u"HTML"_s << u"<div>x|"_s << u"</div>"_s << u"<div>x</div>|"_s;
        QTest::newRow("in full and on") << u"HTML"_s << u"<div>x|"_s << u"</div>div</"_s << u"<div>x</div>div</|"_s;
        QTest::newRow("half") << u"HTML"_s << u"<div>x|"_s << u"</di"_s << u"<div>x</di|v>"_s;
        QTest::newRow("another name") << u"HTML"_s << u"<div><b>x|"_s << u"</div>"_s << u"<div><b>x</div>|"_s;
        QTest::newRow("a longer name") << u"HTML"_s << u"<p>x|"_s << u"</pre>"_s << u"<p>x</pre>|"_s;
        QTest::newRow("capital letters") << u"HTML"_s << u"<b>x|"_s << u"</B>"_s << u"<b>x</B>|"_s;
        QTest::newRow("a blank behind it") << u"HTML"_s << u"<b>x|"_s << u"</ y"_s << u"<b>x</b> y|"_s;
        QTest::newRow("a blank in it") << u"HTML"_s << u"<b>x|"_s << u"</b >"_s << u"<b>x</b >|"_s;
        QTest::newRow("the next tag") << u"HTML"_s << u"<i><b>x|"_s << u"</</"_s << u"<i><b>x</b></i>|"_s;
        QTest::newRow("its end alone") << u"HTML"_s << u"<b>x|"_s << u"</>y"_s << u"<b>x</b>y|"_s;
        QTest::newRow("Return behind it") << u"HTML"_s << u"<b>x|"_s << u"</\n"_s << u"<b>x</b>\r\n|"_s;
        QTest::newRow("Return in it") << u"HTML"_s << u"<b>x|"_s << u"</b\n"_s << u"<b>x</b\r\n|"_s;
        QTest::newRow("Backspace") << u"HTML"_s << u"<b>x|"_s << u"</\b"_s << u"<b>x</|"_s;
        QTest::newRow("Backspace and on") << u"HTML"_s << u"<b>x|"_s << u"</\b\b\b"_s << u"<b>x|"_s;
        QTest::newRow("Backspace in it") << u"HTML"_s << u"<div>x|"_s << u"</di\b"_s << u"<div>x</d|"_s;
        QTest::newRow("Tab in it") << u"HTML"_s << u"<div>x|"_s << u"</di\ty"_s << u"<div>x</div>y|"_s;
        QTest::newRow("two in full") << u"HTML"_s << u"<b>x|\r\n<b>y|"_s << u"</b>z"_s << u"<b>x</b>z|\r\n<b>y</b>z|"_s;
        QTest::newRow("two different") << u"HTML"_s << u"<b>x|\r\n<i>y|"_s << u"</b>"_s << u"<b>x</b>|\r\n<i>y</b>|"_s;
        // clang-format on
    }

    void closingTags() { checkRow(); }

    /// One undo takes the completion back and leaves what was typed.
    void undoOfClosingTags()
    {
        TypingBench bench;
        QCOMPARE(bench.afterKeys(u"<div>x|"_s, u"</"_s), u"<div>x</div>|"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u"<div>x</|"_s);
        bench.editor.redo();
        QCOMPARE(bench.editor.text(), u"<div>x</div>"_s);
        bench.editor.undo();
        bench.editor.undo();
        QCOMPARE(selected(bench), u"<div>x|"_s);

        QCOMPARE(bench.afterKeys(u"<div>x|"_s, u"</di"_s), u"<div>x</di|v>"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u"<div>x</di|"_s);

        QCOMPARE(bench.afterKeys(u"<div>x|"_s, u"</div>"_s), u"<div>x</div>|"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u"<div>x</|"_s);

        QCOMPARE(bench.afterKeys(u"<b>x|\r\n<i>y|"_s, u"</"_s), u"<b>x</b>|\r\n<i>y</i>|"_s);
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"<b>x</\r\n<i>y</"_s);
    }

    /// A step aside accepts what was completed: letters go where the caret is.
    void closingTagsAreLeft()
    {
        TypingBench bench;
        QCOMPARE(bench.afterKeys(u"<b>x|"_s, u"</"_s), u"<b>x</b>|"_s);
        bench.editor.select({0, 3, 0, 3});
        bench.keys(u"b"_s);
        QCOMPARE(selected(bench), u"<b>b|x</b>"_s);
        bench.editor.setReadOnly(true);
        bench.keys(u"</"_s);
        QCOMPARE(selected(bench), u"<b>b|x</b>"_s);
    }

    /// An input method types it too.
    void closingTagsOfAnInputMethod()
    {
        TypingBench bench;
        setSelected(bench, u"<b>x|"_s);
        for (const QString &text : {u"<"_s, u"/"_s, u"b"_s, u">"_s}) {
            QInputMethodEvent input;
            input.setCommitString(text);
            QCoreApplication::sendEvent(&bench.editor, &input);
        }
        QCOMPARE(selected(bench), u"<b>x</b>|"_s);
    }

    void lineEnds_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::newRow("CR") << QByteArray("\r");
        QTest::newRow("LF") << QByteArray("\n");
        QTest::newRow("CR LF") << QByteArray("\r\n");
    }

    void lineEnds()
    {
        QFETCH(QByteArray, lineEnd);
        TypingBench bench;
        bench.world.files.contents[u"/a"_s] = "<ul>" + lineEnd + "\t<li>x" + lineEnd + lineEnd;
        QVERIFY(bench.editor.openFile(u"/a"_s));
        bench.editor.select({1, 6, 1, 6});
        bench.keys(u"</\n</\n<p>\n\b</"_s);
        const QByteArray text = bench.editor.engine().bytes(0, bench.editor.engine().length()).toByteArray();
        QCOMPARE(text,
                 "<ul>" + lineEnd + "\t<li>x</li>" + lineEnd + "</ul>" + lineEnd + "<p>" + lineEnd + "</p>" + lineEnd
                     + lineEnd);
    }

    /// The first time the text is read behind the key.
    void hugeDocuments()
    {
        TypingBench bench;
        bench.editor.setText(u"<div>\r\n"_s + QString(u"<p class=\"a\">text <b>bold</b></p>\r\n"_s).repeated(300000));
        bench.editor.engine().send(QsciScintillaBase::SCI_DOCUMENTEND);
        bench.editor.colouring().colourAll();
        bench.keys(u"<"_s);
        const qsizetype before = bench.editor.engine().length();
        bench.keys(u"/"_s);
        QCOMPARE(bench.editor.engine().length(), before + 1);
        QTRY_COMPARE(bench.editor.engine().bytes(bench.editor.engine().length() - 6, bench.editor.engine().length()),
                     QByteArrayView("</div>"));
        bench.editor.undo();
        bench.keys(u"p>x</"_s);
        // Keys that come meanwhile leave the text as it is.
        bench.editor.setText(bench.editor.text());
        bench.editor.engine().send(QsciScintillaBase::SCI_DOCUMENTEND);
        bench.editor.colouring().colourAll();
        const qsizetype length = bench.editor.engine().length();
        bench.keys(u"</ "_s);
        QTest::qWait(500);
        QCOMPARE(bench.editor.engine().length(), length + 3);
    }

    void surround_data()
    {
        columns();
        // clang-format off: a row a line
        QTest::newRow("quotes") << u"HTML"_s << u"a «b c» d"_s << u"\""_s << u"a \"«b c»\" d"_s;
        QTest::newRow("apostrophes") << u"C/C++"_s << u"a «b c» d"_s << u"'"_s << u"a '«b c»' d"_s;
        QTest::newRow("parentheses") << u""_s << u"«b»"_s << u"("_s << u"(«b»)"_s;
        QTest::newRow("square") << u"HTML"_s << u"«b»"_s << u"["_s << u"[«b»]"_s;
        QTest::newRow("braces") << u"HTML"_s << u"«b»"_s << u"{"_s << u"{«b»}"_s;
        QTest::newRow("a tag") << u"HTML"_s << u"«b»"_s << u"<"_s << u"<|"_s;
        QTest::newRow("twice") << u"HTML"_s << u"«b»"_s << u"(\""_s << u"(\"«b»\")"_s;
        QTest::newRow("several") << u"HTML"_s << u"«a» «b»\r\n«c»"_s << u"("_s << u"(«a») («b»)\r\n(«c»)"_s;
        QTest::newRow("several side by side") << u"HTML"_s << u"«a»«b»"_s << u"("_s << u"(«a»)(«b»)"_s;
        QTest::newRow("a caret beside") << u"HTML"_s << u"«a» b|"_s << u"("_s << u"(«a») b(|"_s;
        QTest::newRow("lines") << u"HTML"_s << u"«a\r\nb»"_s << u"{"_s << u"{«a\r\nb»}"_s;
        QTest::newRow("letters of all kinds") << u"HTML"_s << u"ä«öü€😀»"_s << u"("_s << u"ä(«öü€😀»)"_s;
        QTest::newRow("another character") << u"HTML"_s << u"a «b»"_s << u")"_s << u"a )|"_s;
        QTest::newRow("nothing selected") << u"HTML"_s << u"a |"_s << u"(\"<{['"_s << u"a (\"<{['|"_s;
        // clang-format on
    }

    void surround() { checkRow(); }

    void undoOfSurrounding()
    {
        TypingBench bench;
        QCOMPARE(bench.afterKeys(u"«a» «b»\r\n«c»"_s, u"("_s), u"(«a») («b»)\r\n(«c»)"_s);
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"a b\r\nc"_s);
        bench.editor.redo();
        QCOMPARE(bench.editor.text(), u"(a) (b)\r\n(c)"_s);
        bench.editor.setReadOnly(true);
        QCOMPARE(bench.afterKeys(u"«a» b"_s, u"("_s), u"«a» b"_s);
    }

    void autoClose_data()
    {
        columns();
        // clang-format off: a row a line
        QTest::newRow("parentheses") << u"C/C++"_s << u"|"_s << u"f("_s << u"f(|)"_s;
        QTest::newRow("nested") << u"C/C++"_s << u"|"_s << u"f([{"_s << u"f([{|}])"_s;
        QTest::newRow("typed over") << u"C/C++"_s << u"|"_s << u"f([{}]);"_s << u"f([{}]);|"_s;
        QTest::newRow("quotes") << u"C/C++"_s << u"f(|);"_s << u"\"a"_s << u"f(\"a|\");"_s;
        QTest::newRow("quotes typed over") << u"C/C++"_s << u"f(|);"_s << u"\"a\""_s << u"f(\"a\"|);"_s;
        QTest::newRow("only what was put there") << u"C/C++"_s << u"f(|)"_s << u")"_s << u"f()|)"_s;
        QTest::newRow("before a word") << u"C/C++"_s << u"|a"_s << u"("_s << u"(|a"_s;
        QTest::newRow("an apostrophe") << u"C/C++"_s << u"it|"_s << u"'s"_s << u"it's|"_s;
        QTest::newRow("in a string") << u"C/C++"_s << u"\"a |\""_s << u"('"_s << u"\"a ('|\""_s;
        QTest::newRow("in a comment") << u"C/C++"_s << u"/* | */"_s << u"(\""_s << u"/* (\"| */"_s;
        QTest::newRow("behind a comment's mark") << u"C/C++"_s << u"// |"_s << u"("_s << u"// (|"_s;
        QTest::newRow("no language") << u""_s << u"|"_s << u"a (b"_s << u"a (b|)"_s;
        QTest::newRow("two carets") << u"C/C++"_s << u"a|\r\nb|"_s << u"(x)"_s << u"a(x)|\r\nb(x)|"_s;
        QTest::newRow("two carets, one in a comment") << u"C/C++"_s << u"a|\r\n//b|"_s << u"("_s << u"a(|)\r\n//b(|"_s;
        QTest::newRow("pair erased") << u"C/C++"_s << u"a|"_s << u"(\b"_s << u"a|"_s;
        QTest::newRow("pairs erased") << u"C/C++"_s << u"a|"_s << u"([\"\b\b\b"_s << u"a|"_s;
        QTest::newRow("pair of the text erased") << u"C/C++"_s << u"a(|)b"_s << u"\b"_s << u"a|b"_s;
        QTest::newRow("quotes of the text erased") << u"C/C++"_s << u"a = \"|\";"_s << u"\b"_s << u"a = |;"_s;
        QTest::newRow("between two strings") << u"C/C++"_s << u"\"a\"|\"b\""_s << u"\b"_s << u"\"a|\"b\""_s;
        QTest::newRow("no pair") << u"C/C++"_s << u"a(|]"_s << u"\b"_s << u"a|]"_s;
        QTest::newRow("erased at two carets") << u"C/C++"_s << u"a(|)\r\nb[|]"_s << u"\b"_s << u"a|\r\nb|"_s;
        QTest::newRow("erased at one of two") << u"C/C++"_s << u"a(|)\r\nb(|"_s << u"\b"_s << u"a|)\r\nb|"_s;
        QTest::newRow("tag") << u"HTML"_s << u"|"_s << u"<div>"_s << u"<div>|</div>"_s;
        QTest::newRow("tag in capitals") << u"HTML"_s << u"|"_s << u"<DIV id=a>"_s << u"<DIV id=a>|</DIV>"_s;
        QTest::newRow("tag in XML") << u"XML"_s << u"|"_s << u"<a:b>"_s << u"<a:b>|</a:b>"_s;
        QTest::newRow("tag typed over") << u"HTML"_s << u"|"_s << u"<div>x</div>y"_s << u"<div>x</div>y|"_s;
        QTest::newRow("tag typed over at once") << u"HTML"_s << u"|"_s << u"<div>x</"_s << u"<div>x</div>|"_s;
        QTest::newRow("tag in a tag") << u"HTML"_s << u"|"_s << u"<b><i>x</i></b>"_s << u"<b><i>x</i></b>|"_s;
        QTest::newRow("another end tag") << u"HTML"_s << u"<u>|"_s << u"<b>x</u>"_s << u"<u><b>x</u>|</b>"_s;
        QTest::newRow("script") << u"HTML"_s << u"|"_s << u"<script>"_s << u"<script>|</script>"_s;
        QTest::newRow("void element") << u"HTML"_s << u"|"_s << u"<br>"_s << u"<br>|"_s;
        QTest::newRow("void in XML") << u"XML"_s << u"|"_s << u"<br>"_s << u"<br>|</br>"_s;
        QTest::newRow("closed itself") << u"XML"_s << u"|"_s << u"<a/>"_s << u"<a/>|"_s;
        QTest::newRow("end tag") << u"HTML"_s << u"<i>|"_s << u"</i>"_s << u"<i></i>|"_s;
        QTest::newRow("end tag is there") << u"HTML"_s << u"<b|</b>"_s << u">"_s << u"<b>|</b>"_s;
        QTest::newRow("tag before a word") << u"HTML"_s << u"<b|x"_s << u">"_s << u"<b>|x"_s;
        QTest::newRow("sign") << u"HTML"_s << u"a |"_s << u"> b"_s << u"a > b|"_s;
        QTest::newRow("comparison in a script")
            << u"HTML"_s << u"<script>a|</script>"_s << u"<b>"_s << u"<script>a<b>|</script>"_s;
        QTest::newRow("in a value") << u"HTML"_s << u"<a title=\"|\">"_s << u"<b>"_s << u"<a title=\"<b>|\">"_s;
        QTest::newRow("in a comment of HTML") << u"HTML"_s << u"<!-- | -->"_s << u"<b>"_s << u"<!-- <b>| -->"_s;
        QTest::newRow("value") << u"HTML"_s << u"<a href|>"_s << u"=\"x\""_s << u"<a href=\"x\"|>"_s;
        QTest::newRow("quotes in text") << u"HTML"_s << u"<p>|"_s << u"\""_s << u"<p>\"|"_s;
        QTest::newRow("tag pair erased") << u"HTML"_s << u"|"_s << u"<b>\b"_s << u"<b|"_s;
        QTest::newRow("braces of a style sheet")
            << u"HTML"_s << u"<style>a |</style>"_s << u"{"_s << u"<style>a {|}</style>"_s;
        QTest::newRow("comment of VBScript") << u"HTML"_s << u"<% @language=\"VBScript\" %><% a |%>"_s << u"'"_s
                                             << u"<% @language=\"VBScript\" %><% a '|%>"_s;
        QTest::newRow("lines between tags") << u"HTML"_s << u"|"_s << u"<div>\nx"_s << u"<div>\r\n\tx|\r\n</div>"_s;
        QTest::newRow("lines between braces") << u"C/C++"_s << u"  |"_s << u"f {\nx"_s << u"  f {\r\n  \tx|\r\n  }"_s;
        // clang-format on
    }

    void autoClose() { checkRow(true); }

    void autoCloseIsOffAtFirst()
    {
        TypingBench bench;
        QVERIFY(!bench.helpers.typedPairs().closes());
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::AutoClose), std::optional(false));
        QCOMPARE(bench.afterKeys(u"|"_s, u"<div>(\""_s), u"<div>(\"|"_s);
        QCOMPARE(bench.afterKeys(u"(|)"_s, u"\b"_s), u"|)"_s);
        bench.run(TextCommand::AutoClose);
        QCOMPARE(isSwitchedOn(bench.helpers, TextCommand::AutoClose), std::optional(true));
        QCOMPARE(bench.world.settings.GetSetting(UserSetting::AutoClose), u"1"_s);
        QCOMPARE(bench.afterKeys(u"|"_s, u"("_s), u"(|)"_s);
        QVERIFY(TypedPairs(bench.editor, bench.context, bench.helpers.elements()).closes());
    }

    void undoOfAutoClose()
    {
        TypingBench bench;
        bench.helpers.typedPairs().setCloses(true);
        QCOMPARE(bench.afterKeys(u"a|"_s, u"("_s), u"a(|)"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u"a(|"_s);
        QCOMPARE(bench.afterKeys(u"a|"_s, u"(\b"_s), u"a|"_s);
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"a()"_s);
        // What was put there before another line was visited is text like any other.
        QCOMPARE(bench.afterKeys(u"|\r\nb"_s, u"("_s), u"(|)\r\nb"_s);
        bench.editor.select({1, 0, 1, 0});
        bench.editor.select({0, 1, 0, 1});
        bench.keys(u")"_s);
        QCOMPARE(selected(bench), u"()|)\r\nb"_s);
        bench.editor.setReadOnly(true);
        QCOMPARE(bench.afterKeys(u"(|)"_s, u"(\b"_s), u"(|)"_s);
    }

    void indent_data()
    {
        columns();
        // clang-format off: a row a line
        QTest::newRow("behind a tag") << u"HTML"_s << u"<div>|"_s << u"\n"_s << u"<div>\r\n\t|"_s;
        QTest::newRow("further in") << u"HTML"_s << u"  <div>|x"_s << u"\n"_s << u"  <div>\r\n  \t|x"_s;
        QTest::newRow("between tags") << u"HTML"_s << u"\t<div>|</div>x"_s << u"\n"_s
                                      << u"\t<div>\r\n\t\t|\r\n\t</div>x"_s;
        QTest::newRow("tag in two lines")
            << u"HTML"_s << u"<div\r\n id=a>|"_s << u"\n"_s << u"<div\r\n id=a>\r\n \t|"_s;
        QTest::newRow("behind blanks") << u"HTML"_s << u"<div> |"_s << u"\n"_s << u"<div> \r\n\t|"_s;
        QTest::newRow("end tag") << u"HTML"_s << u"<b></b>|"_s << u"\n"_s << u"<b></b>\r\n|"_s;
        QTest::newRow("void element") << u"HTML"_s << u" <br>|"_s << u"\n"_s << u" <br>\r\n |"_s;
        QTest::newRow("closed itself") << u"XML"_s << u" <a/>|"_s << u"\n"_s << u" <a/>\r\n |"_s;
        QTest::newRow("text that is kept") << u"HTML"_s << u" <pre>|"_s << u"\n"_s << u" <pre>\r\n |"_s;
        QTest::newRow("text") << u"HTML"_s << u"\tx|y"_s << u"\n"_s << u"\tx\r\n\t|y"_s;
        QTest::newRow("comment") << u"HTML"_s << u"<!-- <b>|"_s << u"\n"_s << u"<!-- <b>\r\n|"_s;
        QTest::newRow("value") << u"HTML"_s << u"<a title=\"<b>|\">"_s << u"\n"_s << u"<a title=\"<b>\r\n|\">"_s;
        QTest::newRow("comparison") << u"HTML"_s << u"<script>a<b>|</script>"_s << u"\n"_s
                                    << u"<script>a<b>\r\n|</script>"_s;
        QTest::newRow("script") << u"HTML"_s << u"<script>|</script>"_s << u"\n"_s << u"<script>\r\n\t|\r\n</script>"_s;
        QTest::newRow("brace") << u"HTML"_s << u"<style>a {|"_s << u"\n"_s << u"<style>a {\r\n\t|"_s;
        QTest::newRow("between braces") << u"C/C++"_s << u" if {|}"_s << u"\n"_s << u" if {\r\n \t|\r\n }"_s;
        QTest::newRow("brace in a comment") << u"C/C++"_s << u"/* {|}"_s << u"\n"_s << u"/* {\r\n\t|}"_s;
        QTest::newRow("two carets") << u"HTML"_s << u"<i>|</i>\r\n<b>|</b>\r\nx|"_s << u"\n"_s
                                    << u"<i>\r\n\t|\r\n</i>\r\n<b>\r\n\t|\r\n</b>\r\nx\r\n|"_s;
        QTest::newRow("selected content") << u"HTML"_s << u"<i>«x»</i>"_s << u"\n"_s << u"<i>\r\n\t|\r\n</i>"_s;
        QTest::newRow("brace typed") << u"C/C++"_s << u" if {\r\n\t\tx\r\n\t\t|"_s << u"}"_s
                                     << u" if {\r\n\t\tx\r\n }|"_s;
        QTest::newRow("nested braces") << u"C/C++"_s << u"a {\r\n b { }\r\n  {\r\n  }\r\n   |"_s << u"}"_s
                                       << u"a {\r\n b { }\r\n  {\r\n  }\r\n}|"_s;
        QTest::newRow("braces in strings")
            << u"C/C++"_s << u" a {\r\n\"}{{\"; // }\r\n   |"_s << u"}"_s << u" a {\r\n\"}{{\"; // }\r\n }|"_s;
        QTest::newRow("brace behind text") << u"C/C++"_s << u"a {\r\n  x |"_s << u"}"_s << u"a {\r\n  x }|"_s;
        QTest::newRow("brace of no other") << u"C/C++"_s << u"a\r\n  |"_s << u"}"_s << u"a\r\n  }|"_s;
        QTest::newRow("brace in a comment typed")
            << u"C/C++"_s << u"a {\r\n  /*\r\n  |"_s << u"}"_s << u"a {\r\n  /*\r\n  }|"_s;
        QTest::newRow("brace in the text of a page") << u"HTML"_s << u"a {\r\n  |"_s << u"}"_s << u"a {\r\n  }|"_s;
        QTest::newRow("brace of a style sheet")
            << u"HTML"_s << u" <style>\r\n  a {\r\n   b\r\n   |"_s << u"}"_s << u" <style>\r\n  a {\r\n   b\r\n  }|"_s;
        QTest::newRow("end tag typed") << u"HTML"_s << u" <div>\r\n\tx\r\n\t|"_s << u"</"_s
                                       << u" <div>\r\n\tx\r\n </div>|"_s;
        QTest::newRow("end tag in full") << u"HTML"_s << u" <div>\r\n\tx\r\n\t|"_s << u"</div>"_s
                                         << u" <div>\r\n\tx\r\n </div>|"_s;
        QTest::newRow("end tag of an outer one")
            << u"HTML"_s << u" <ul>\r\n\t<li>\r\n\t|"_s << u"</ul>"_s << u" <ul>\r\n\t<li>\r\n </ul>|"_s;
        QTest::newRow("end tag behind text")
            << u"HTML"_s << u" <div>\r\n\tx|"_s << u"</"_s << u" <div>\r\n\tx</div>|"_s;
        QTest::newRow("end tag further in") << u"HTML"_s << u"\t<p>\r\n|"_s << u"</"_s << u"\t<p>\r\n\t</p>|"_s;
        QTest::newRow("end tag of kept text") << u"HTML"_s << u" <pre>\r\n\t|"_s << u"</"_s << u" <pre>\r\n\t</pre>|"_s;
        QTest::newRow("end tag of kept text in full")
            << u"HTML"_s << u" <i><pre>\r\n\t</pre|"_s << u">"_s << u" <i><pre>\r\n\t</pre>|"_s;
        QTest::newRow("end tag in a comment")
            << u"HTML"_s << u" <b><!--\r\n\t|-->"_s << u"</b>"_s << u" <b><!--\r\n\t</b>|-->"_s;
        QTest::newRow("end tag in a script")
            << u"HTML"_s << u" <b><script>x = `\r\n\t|`"_s << u"</b>"_s << u" <b><script>x = `\r\n\t</b>|`"_s;
        QTest::newRow("end tags at two carets")
            << u"HTML"_s << u" <b>\r\n\t|\r\n <i>\r\n\t|"_s << u"</"_s << u" <b>\r\n </b>|\r\n <i>\r\n </i>|"_s;
        // clang-format on
    }

    void indent() { checkRow(); }

    /// Lines are indented as the options say.
    void optionsOfIndentation()
    {
        TypingBench bench;
        EditorOptions options = bench.editor.options();
        options.tabsAsBlanks = true;
        options.tabWidth = 3;
        bench.editor.setOptions(options);
        QCOMPARE(bench.afterKeys(u"<b>|</b>"_s, u"\n"_s), u"<b>\r\n   |\r\n</b>"_s);
        options.autoIndent = false;
        bench.editor.setOptions(options);
        QCOMPARE(bench.afterKeys(u" <b>|</b>"_s, u"\n"_s), u" <b>\r\n|</b>"_s);
        QCOMPARE(bench.afterKeys(u" <b>\r\n   |"_s, u"</"_s), u" <b>\r\n   </b>|"_s);
        QCOMPARE(bench.afterKeys(u" <b>\r\n   |"_s, u"</u>"_s), u" <b>\r\n   </u>|"_s);
        bench.editor.setLanguage(u"C/C++"_s);
        QCOMPARE(bench.afterKeys(u" {\r\n   |"_s, u"}"_s), u" {\r\n   }|"_s);
    }

    void undoOfIndentation()
    {
        TypingBench bench;
        QCOMPARE(bench.afterKeys(u"<b>|</b>"_s, u"\n"_s), u"<b>\r\n\t|\r\n</b>"_s);
        bench.editor.undo();
        QCOMPARE(bench.editor.text(), u"<b></b>"_s);
        QCOMPARE(bench.afterKeys(u" <b>\r\n\t|"_s, u"</"_s), u" <b>\r\n </b>|"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u" <b>\r\n\t</|"_s);
        bench.editor.setLanguage(u"C/C++"_s);
        QCOMPARE(bench.afterKeys(u" {\r\n\t|"_s, u"}"_s), u" {\r\n }|"_s);
        bench.editor.undo();
        QCOMPARE(selected(bench), u" {\r\n\t}|"_s);
    }

    /// The caret stays at its end.
    void directionOfWhatIsSurrounded()
    {
        TypingBench bench;
        bench.setMarked(u"a |b^ c"_s);
        bench.keys(u"("_s);
        QCOMPARE(bench.marked(), u"a (|b^) c"_s);
    }
};

ZEPHIRA_TEST(TstTypedPairs)

#include "tst_typedpairs.moc"

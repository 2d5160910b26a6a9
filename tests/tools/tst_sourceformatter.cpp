// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/plainformatter.h"
#include "tools/sourceformatter.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList pieces{u"<"_s,           u">"_s,          u"</"_s,           u"<b>"_s,
                         u"</b>"_s,        u"<p>"_s,        u"<br>"_s,         u"<BR/>"_s,
                         u"<Br a=x>"_s,    u"<!-- x -->"_s, u"<!doctype a>"_s, u"<input"_s,
                         u"<img src=a>"_s, u"<area>"_s,     u"<hrx>"_s,        u"<applet "_s,
                         u" "_s,           u"  "_s,         u"     "_s,        u"\t"_s,
                         u"\r\n"_s,        u"\r"_s,         u"\n"_s,           u"x"_s,
                         u"ü"_s,           u"p"_s,          u"!--"_s,          u"/"_s,
                         QString(37, u' ')};

void addTexts()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
}

QTestData &row(const char *name, const QString &text, const QString &expected)
{
    return QTest::newRow(name) << text << expected;
}

/// A run of blanks with a letter on each side.
QString run(int blanks)
{
    return u'a' + QString(blanks, u' ') + u'b';
}

} // namespace

class TstSourceFormatter final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replaceAll_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("find");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("expected");
        const auto replaces = [](const char *name, const QString &text, const QString &find, const QString &replacement,
                                 const QString &expected) {
            QTest::newRow(name) << text << find << replacement << expected;
        };
        replaces("each", u"a-b-c"_s, u"-"_s, u"+"_s, u"a+b+c"_s);
        replaces("from left to right", u"aaaaa"_s, u"aa"_s, u"b"_s, u"bba"_s);
        replaces("what a replacement brings isn't searched", u"abab"_s, u"ab"_s, u"xab"_s, u"xabxab"_s);
        replaces("nor what it makes with its neighbours", u"aabb"_s, u"ab"_s, {}, u"ab"_s);
        replaces("exact in case", u"aA"_s, u"A"_s, u"b"_s, u"ab"_s);
        replaces("by nothing", u"<a>"_s, u"a"_s, {}, u"<>"_s);
        replaces("nothing found", u"abc"_s, u"d"_s, u"e"_s, u"abc"_s);
        replaces("nothing to find", u"abc"_s, {}, u"e"_s, u"abc"_s);
        replaces("in nothing", {}, u"a"_s, u"e"_s, {});
        replaces("the whole text", u"ab"_s, u"ab"_s, u"c"_s, u"c"_s);
    }

    void replaceAll()
    {
        QFETCH(QString, text);
        QFETCH(QString, find);
        QFETCH(QString, replacement);
        QTEST(ReplaceAll(text, find, replacement), "expected");
    }

    void trimAroundTags_data()
    {
        addTexts();
        row("before an end", u"a >"_s, u"a>"_s);
        row("behind a beginning", u"< a"_s, u"<a"_s);
        row("between tags", u"> <"_s, u"><"_s);
        row("behind a tag", u"> a"_s, u">a"_s);
        row("before a tag", u"a <"_s, u"a<"_s);
        row("both sides of a text", u"> a b <"_s, u">a b<"_s);
        row("two between tags", u">  <"_s, u"><"_s);
        row("three between tags", u">   <"_s, u"> <"_s);
        row("two within a tag", u"<  >"_s, u"<>"_s);
        row("three within a tag", u"<   >"_s, u"< >"_s);
        row("two behind a tag", u">  a"_s, u"> a"_s);
        row("two ends", u">  >"_s, u">>"_s);
        row("two beginnings", u"<  <"_s, u"<<"_s);
        row("at both ends of the text", u" <a> "_s, u"<a>"_s);
        row("no tags", u" a  b "_s, u" a  b "_s);
        row("tabs stay", u">\t<"_s, u">\t<"_s);
    }

    void trimAroundTags()
    {
        QFETCH(QString, text);
        QTEST(TrimAroundTags(text), "expected");
    }

    void compact_data()
    {
        addTexts();
        row("blanks and a tab", u"<a>\tx  y   </a>"_s, u"<a>x y</a>"_s);
        row("inline tags lose their blanks", u"a <b> c"_s, u"a<b>c"_s);
        row("line ends go", u"<a>\r\n  <b>\r\nx\r\ny</b>\r\n</a>\r\n"_s, u"<a><b>xy</b></a>"_s);
        row("lone line ends stay", u"<a>\n<b>\rx\r\r\n\ny"_s, u"<a>\n<b>\rx\r\ny"_s);
        row("blanks around a line end are one run", u"a \r\n b"_s, u"a b"_s);
        row("two blanks", run(2), run(1));
        row("five blanks", run(5), run(1));
        row("38 blanks", run(38), run(1));
        row("39 blanks", run(39), run(2));
        row("tabs count as blanks", u'a' + QString(39, u'\t') + u'b', run(2));
        row("nothing", {}, {});
    }

    void compact()
    {
        QFETCH(QString, text);
        QTEST(Compact(text), "expected");
    }

    void upTo38BlanksBecomeOne()
    {
        for (int blanks = 1; blanks <= 38; ++blanks)
            QCOMPARE(Compact(run(blanks)), run(1));
    }

    void simple_data()
    {
        addTexts();
        row("tags behind tags", u"<a>  <b> x </b>\r\n</a>"_s, u"<a>\r\n<b>x</b>\r\n</a>"_s);
        row("a tag behind text stays", u"<p>one<br>two</p>"_s, u"<p>one<br>two</p>"_s);
        row("three in a row", u"<a><b><c>"_s, u"<a>\r\n<b>\r\n<c>"_s);
        row("no tags", u"a  b"_s, u"a b"_s);
        row("nothing", {}, {});
    }

    void simple()
    {
        QFETCH(QString, text);
        QTEST(Simple(text), "expected");
    }

    void hierarchical_data()
    {
        addTexts();
        row("a page", u"<html><head><title>x</title></head><body><p>y<br>z</body></html>"_s,
            u"\r\n<html>\r\n\t<head>\r\n\t\t<title>x\r\n\t\t</title>\r\n\t</head>\r\n\t<body>\r\n\t<p>y\r\n\t<br>z"
            "\r\n\t</body>\r\n</html>"_s);
        row("text ahead of the first tag", u"abc<b>x</b>"_s, u"abc<\r\n<b>x\r\n</b>"_s);
        row("no tags", u"a\r\nb\tc  d"_s, u"abc  d"_s);
        row("more closing than opening tags", u"</b>x<i>y</i>z"_s, {});
        row("below the lowest level and up again", u"</b><i><u><b>x"_s, u"\r\n<u>\r\n\t<b>x"_s);
        row("names in any case", u"<a><BR>"_s, u"\r\n<a>\r\n<BR>"_s);
        row("names with attributes", u"<a><Br clear=all>"_s, u"\r\n<a>\r\n<Br clear=all>"_s);
        row("names that only begin so", u"<a><brx>"_s, u"\r\n<a>\r\n\t<brx>"_s);
        row("names with a slash", u"<a><br/>"_s, u"\r\n<a>\r\n\t<br/>"_s);
        row("a name begins with a blank", u"<a>< br>"_s, u"\r\n<a>\r\n\t<br>"_s);
        row("a beginning in a comment", u"<!-- a <b c -->"_s, u"\r\n<!-- a \r\n\t<b c -->"_s);
        row("comments keep the level", u"<a><!--x--><!---->"_s, u"\r\n<a>\r\n<!--x-->\r\n<!---->"_s);
        row("a tag without an end keeps the level", u"<a><b"_s, u"\r\n<a>\r\n<b"_s);
        row("blank runs stay", u"<a>x   y</a>"_s, u"\r\n<a>x   y\r\n</a>"_s);
        row("tabs are deleted", u"<a>x\ty</a>"_s, u"\r\n<a>xy\r\n</a>"_s);
        row("blanks beside tags go, but for those at a line's end", u"<a > x </a >"_s, u"\r\n<a>x \r\n</a>"_s);
        row("a script loses its line ends", u"<script>\r\n// a\r\nb()\r\n</script>"_s,
            u"\r\n<script>// ab()\r\n</script>"_s);
        row("a beginning alone", u"<"_s, u"\r\n<"_s);
        row("an end alone", u">"_s, u">"_s);
        row("nothing", {}, {});
        for (const QString &name : {u"br"_s, u"hr"_s, u"img"_s, u"meta"_s, u"applet"_s, u"p"_s, u"!--"_s, u"input"_s,
                                    u"!doctype"_s, u"area"_s})
            row(qPrintable(name), u"<a><%1>"_s.arg(name), u"\r\n<a>\r\n<%1>"_s.arg(name));
    }

    void hierarchical()
    {
        QFETCH(QString, text);
        QTEST(Hierarchical(text), "expected");
    }

    void indentTagsAloneKeepsBlanks() { QCOMPARE(IndentTags(u"<a > x\r\n</a>"_s), u"\r\n<a > x\r\n\r\n</a>"_s); }

    void nextTagText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qsizetype>("position");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first") << u"x<a b>y<c>"_s << static_cast<qsizetype>(0) << u"<a b>"_s;
        QTest::newRow("behind a beginning") << u"x<a b>y<c>"_s << static_cast<qsizetype>(2) << u"<c>"_s;
        QTest::newRow("an end before it") << u"a>b<c>"_s << static_cast<qsizetype>(0) << u"<c>"_s;
        QTest::newRow("two beginnings") << u"<a <b>"_s << static_cast<qsizetype>(0) << u"<a <b>"_s;
    }

    void nextTagText()
    {
        QFETCH(QString, text);
        QFETCH(qsizetype, position);
        QTEST(NextTagText(text, position), "expected");
    }

    void noNextTagIsAnError()
    {
        QVERIFY_EXCEPTION_THROWN(NextTagText(u"a>b"_s, 0), HandlerError);
        QVERIFY_EXCEPTION_THROWN(NextTagText(u"<a><b"_s, 1), HandlerError);
        QVERIFY_EXCEPTION_THROWN(NextTagText({}, 0), HandlerError);
    }

    void tagNameOf_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("expected");
        QTest::newRow("bare") << u"<Body>"_s << u"Body"_s;
        QTest::newRow("with attributes") << u"<a href=x>"_s << u"a"_s;
        QTest::newRow("closing") << u"</b>"_s << u"/b"_s;
        QTest::newRow("comment") << u"<!--x y-->"_s << u"!--"_s;
        QTest::newRow("slash at the end") << u"<br/>"_s << u"br/"_s;
        QTest::newRow("tab") << u"<a\tb>"_s << u"a\tb"_s;
        QTest::newRow("blank first") << u"< a>"_s << QString();
        QTest::newRow("nothing") << u"<>"_s << QString();
    }

    void tagNameOf()
    {
        QFETCH(QString, tag);
        QTEST(TagNameOf(tag), "expected");
    }

    void aNameWithoutAnEndIsAnError()
    {
        QVERIFY_EXCEPTION_THROWN(TagNameOf(u"<a"_s), HandlerError);
        QVERIFY_EXCEPTION_THROWN(TagNameOf({}), HandlerError);
    }

    void likeTheFormatterWrittenPlainly()
    {
        QRandomGenerator random(51);
        for (int round = 0; round < 20000; ++round) {
            const QString text = generatedText(random, pieces, 30);
            QCOMPARE(TrimAroundTags(text), plainTrimAroundTags(text));
            QCOMPARE(Compact(text), plainCompact(text));
            QCOMPARE(Simple(text), plainSimple(text));
            QCOMPARE(IndentTags(text), plainIndentTags(text));
            QCOMPARE(Hierarchical(text), plainHierarchical(text));
            const QString &find = pieces[random.bounded(pieces.size())];
            const QString &replacement = pieces[random.bounded(pieces.size())];
            QCOMPARE(ReplaceAll(text, find, replacement), QString(text).replace(find, replacement));
        }
    }

    void yieldsOncePerPass()
    {
        int passes = 0;
        const auto count = [&passes] { return ++passes > 0; };
        QCOMPARE(IndentTags(u"a<b></c></d>e"_s, count), plainIndentTags(u"a<b></c></d>e"_s));
        QCOMPARE(passes, 4); // The last pass finds no further tag.
        Hierarchical(u"no tag"_s, count);
        QCOMPARE(passes, 5);
    }

    void aYieldEndsTheRun()
    {
        int passes = 0;
        IndentTags(u"<a><b><c>"_s, [&passes] { return ++passes < 2; });
        QCOMPARE(passes, 2);
    }

    void levelsThatNeverComeDownMayBeTooMany()
    {
        const QString text = u"<li>"_s.repeated(30000);
        int passes = 0;
        try {
            Hierarchical(text, [&passes] { return ++passes > 0; });
            QFAIL("30,000 levels were indented");
        } catch (const HandlerError &error) {
            QCOMPARE(error.description, u"Out of string space"_s);
        }
        QCOMPARE(passes, 0);
        QCOMPARE(Hierarchical(text.first(400)).size(), 100 * (2 + 4) + 99 * 100 / 2);
    }
};

ZEPHIRA_TEST(TstSourceFormatter)

#include "tst_sourceformatter.moc"

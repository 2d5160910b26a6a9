// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/selectionmarks.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Commands on the elements around the carets.
class TstElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rename_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("in the content") << u"HTML"_s << u"<div><b>x|</b></div>"_s << u"<div><«b»>x</«b»></div>"_s;
        QTest::newRow("in the start tag") << u"HTML"_s << u"<d|iv><b>x</b></div>"_s << u"<«div»><b>x</b></«div»>"_s;
        QTest::newRow("in the end tag") << u"HTML"_s << u"<DIV id=a>x</d|iv >"_s << u"<«DIV» id=a>x</«div» >"_s;
        QTest::newRow("the same inside") << u"HTML"_s << u"<b><b>x</b>|</b>"_s << u"<«b»><b>x</b></«b»>"_s;
        QTest::newRow("in a comment") << u"HTML"_s << u"<b><!-- <i> | --></b>"_s << u"<«b»><!-- <i>  --></«b»>"_s;
        QTest::newRow("in a script") << u"HTML"_s << u"<script>'<b>'|</script>"_s << u"<«script»>'<b>'</«script»>"_s;
        QTest::newRow("without an end tag") << u"HTML"_s << u"<ul><li>x|<li>y</ul>"_s << u"<ul><«li»>x<li>y</ul>"_s;
        QTest::newRow("without content") << u"HTML"_s << u"<p><im|g src=a></p>"_s << u"<p><«img» src=a></p>"_s;
        QTest::newRow("around nothing") << u"HTML"_s << u"x| <b>y</b>"_s << u"x| <b>y</b>"_s;
        QTest::newRow("two carets") << u"HTML"_s << u"<b>|x</b><i>|y</i>"_s << u"<«b»>x</«b»><«i»>y</«i»>"_s;
        QTest::newRow("two carets in one") << u"HTML"_s << u"<b>|x|</b>"_s << u"<«b»>x</«b»>"_s;
        QTest::newRow("XML") << u"XML"_s << u"<a:b><a:B>|</a:B></a:b>"_s << u"<a:b><«a:B»></«a:B»></a:b>"_s;
        QTest::newRow("no tags") << u"C/C++"_s << u"a<b>(|)</b>"_s << u"a<b>(|)</b>"_s;
    }

    void rename()
    {
        QFETCH(QString, language);
        QFETCH(QString, before);
        AssistFixture f;
        f.editor.setLanguage(language);
        QTEST(afterCommand(f, before, TextCommand::RenameTag), "after");
    }

    void oneTypesBothNames()
    {
        AssistFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        setSelected(f, u"<b>\r\nx|\r\n</b>"_s);
        f.run(TextCommand::RenameTag);
        f.type(u"strong"_s);
        QCOMPARE(selected(f), u"<strong|>\r\nx\r\n</strong|>"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"<b>\r\nx\r\n</b>"_s);
    }

    /// What was read before a change or another file isn't believed any more.
    void changesAreSeen()
    {
        AssistFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        setSelected(f, u"<b>x|</b>"_s);
        f.run(TextCommand::RenameTag);
        f.type(u"i"_s);
        f.editor.select({0, 3, 0, 3});
        f.type(u"<u>"_s);
        f.run(TextCommand::RenameTag);
        QCOMPARE(selected(f), u"<i><«u»>x</i>"_s);
        for (const QByteArray &text : {QByteArray("<p>12</p>"), QByteArray("<q>12</q>")}) {
            f.world.files.contents[u"/a"_s] = text;
            QVERIFY(f.editor.openFile(u"/a"_s));
            f.editor.select({0, 4, 0, 4});
            f.run(TextCommand::RenameTag);
            QCOMPARE(f.editor.selText(), QString::fromUtf8(text.sliced(1, 1)).repeated(2));
        }
    }

    void enclosing()
    {
        AssistFixture f;
        f.editor.setLanguage(u"HTML"_s);
        setSelected(f, u"<div><p>a <b>x|</b></p></div>"_s);
        const QStringList steps{u"<div><p>a <b>x|</b></p></div>"_s, u"<div><p>a «<b>x</b>»</p></div>"_s,
                                u"<div>«<p>a <b>x</b></p>»</div>"_s, u"«<div><p>a <b>x</b></p></div>»"_s};
        for (qsizetype i = 1; i < steps.size(); ++i) {
            f.run(TextCommand::SelectEnclosing);
            QCOMPARE(selected(f), steps[i]);
        }
        f.run(TextCommand::SelectEnclosing);
        QCOMPARE(selected(f), steps.last());
        for (qsizetype i = steps.size() - 2; i >= 0; --i) {
            f.run(TextCommand::SelectInner);
            QCOMPARE(selected(f), steps[i]);
        }
        f.run(TextCommand::SelectInner);
        QCOMPARE(selected(f), steps.first());
    }

    void enclosingOfASelection()
    {
        AssistFixture f;
        f.editor.setLanguage(u"HTML"_s);
        QCOMPARE(afterCommand(f, u"<p><i>«a</i> b»</p>"_s, TextCommand::SelectEnclosing), u"«<p><i>a</i> b</p>»"_s);
        QCOMPARE(afterCommand(f, u"<ul><li>a|<li>b</ul>"_s, TextCommand::SelectEnclosing), u"<ul>«<li>a»<li>b</ul>"_s);
        QCOMPARE(afterCommand(f, u"<p><i>|a</i><b>|c</b></p>"_s, TextCommand::SelectEnclosing),
                 u"<p>«<i>a</i>»«<b>c</b>»</p>"_s);
    }

    void twoThatMeetAreOne()
    {
        AssistFixture f;
        f.editor.setLanguage(u"HTML"_s);
        setSelected(f, u"<p><i>|a</i><b>|c</b></p>"_s);
        f.run(TextCommand::SelectEnclosing);
        f.run(TextCommand::SelectEnclosing);
        QCOMPARE(selected(f), u"«<p><i>a</i><b>c</b></p>»"_s);
        f.run(TextCommand::SelectInner);
        QCOMPARE(selected(f), u"<p>«<i>a</i>»«<b>c</b>»</p>"_s);
    }

    void theWayBackEndsWithAnotherSelection()
    {
        AssistFixture f;
        f.editor.setLanguage(u"HTML"_s);
        setSelected(f, u"<p>x|</p>"_s);
        f.run(TextCommand::SelectEnclosing);
        f.editor.select({0, 3, 0, 3});
        f.run(TextCommand::SelectInner);
        QCOMPARE(selected(f), u"<p>|x</p>"_s);
    }
};

ZEPHIRA_TEST(TstElements)

#include "tst_elements.moc"

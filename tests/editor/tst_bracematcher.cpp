// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bracematcher.h"
#include "editor/editorfixture.h"
#include "editor/indicators.h"
#include "support/testregistry.h"

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

class TstBraceMatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pairs_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text"); // the caret is at |
        QTest::addColumn<QString>("partner");
        QTest::addColumn<int>("at"); // -1 for none
        const QString c = u"C/C++"_s;
        const QString html = u"HTML"_s;
        QTest::newRow("after an opening one") << c << u"(|a(b))"_s << u")"_s << 5;
        QTest::newRow("in front of an opening one") << c << u"x|[1]"_s << u"]"_s << 3;
        QTest::newRow("after a closing one") << c << u"{{}}|"_s << u"{"_s << 0;
        QTest::newRow("not in a string") << c << u"(|\")\")"_s << u")"_s << 4;
        QTest::newRow("no partner") << c << u"(|a"_s << QString() << -1;
        QTest::newRow("no bracket") << c << u"a|b"_s << QString() << -1;
        QTest::newRow("tag name") << html << u"<d|iv><div></div></div>"_s << u"div"_s << 18;
        QTest::newRow("end tag") << html << u"<DIV><b></b></div|>"_s << u"DIV"_s << 1;
        QTest::newRow("tag in a comment") << html << u"<p|><!-- </p> --></p>"_s << u"p"_s << 18;
        QTest::newRow("a longer name is another") << html << u"<b|><br></b>"_s << u"b"_s << 9;
        QTest::newRow("attribute") << html << u"<p cl|ass=\"\"></p>"_s << QString() << -1;
    }
    void pairs()
    {
        QFETCH(QString, language);
        QFETCH(QString, text);
        QFETCH(QString, partner);
        QFETCH(int, at);
        EditorFixture f;
        f.editor.setLanguage(language);
        const auto caret = static_cast<int>(text.indexOf(u'|'));
        f.editor.setText(text.remove(u'|'));
        f.editor.colouring().colourAll();
        BraceMatcher matcher(f.editor.engine());
        const auto pair = matcher.pairAt(caret);
        QCOMPARE(pair.has_value(), at >= 0);
        if (pair) {
            QCOMPARE(pair->secondStart, at);
            QCOMPARE(text.sliced(pair->secondStart, pair->secondEnd - pair->secondStart), partner);
        }
    }

    void theCaretShowsItsPair()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.show();
        f.editor.setText(u"f(a) b"_s);
        const auto marked = [&] {
            QByteArray marks;
            for (qsizetype i = 0; i < f.editor.engine().length(); ++i)
                marks += f.editor.engine().send(Sci::SCI_INDICATORALLONFOR, i) >> BraceIndicator & 1 ? '#' : '.';
            return marks;
        };
        f.editor.select({0, 2, 0, 2});
        QCOMPARE(marked(), ".#.#.."_ba);
        f.editor.select({0, 6, 0, 6});
        QCOMPARE(marked(), "......"_ba);
        // Typed braces are matched at once.
        QTest::keyClicks(&f.editor, u"()"_s);
        QCOMPARE(marked(), "......##"_ba);
        QTest::keyClick(&f.editor, Qt::Key_Backspace);
        QCOMPARE(marked(), "......."_ba);
        EditorOptions options;
        options.matchBraces = false;
        f.editor.select({0, 2, 0, 2});
        f.editor.setOptions(options);
        QCOMPARE(marked(), "......."_ba);
    }

    void keysGoToThePartner()
    {
        EditorFixture f;
        f.editor.setLanguage(u"C/C++"_s);
        f.show();
        f.editor.setText(u"f(ab)"_s);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(f.editor.selText(), u"(ab)"_s);
        f.editor.select({0, 1, 0, 1});
        QTest::keyClick(&f.editor, Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(f.editor.selection(false).EndColNo, 4);
    }
};

ZEPHIRA_TEST(TstBraceMatcher)

} // namespace zephira

#include "tst_bracematcher.moc"

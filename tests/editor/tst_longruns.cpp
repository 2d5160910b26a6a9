// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/colouritems.h"
#include "editor/editorfixture.h"
#include "editor/longruns.h"
#include "support/testregistry.h"
#include "syntax/syntaxstyle.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Sci = QsciScintillaBase;

/// A page of one line that is long enough for its style runs to be split.
QString onePageLine()
{
    return u"<p class=\"a\">"_s + u"many words stand in a row "_s.repeated(longLineBytes / 20) + u"</p>"_s;
}

int rawStyle(const EditorFixture &f, qsizetype position)
{
    return static_cast<int>(f.editor.engine().send(Sci::SCI_GETSTYLEAT, position)) & 0xff;
}

} // namespace

class TstLongRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsChangeAtBlanks_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("styles"); // one letter per byte; a capital is the alternate of a style
        QTest::addColumn<QByteArray>("broken");
        const auto add = [](const char *text, const char *styles, const char *broken) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(styles) << QByteArray(broken);
        };
        add("", "", "");
        add("aa bb cc", "aaaaaaaa", "aaaAAAaa");
        add("a  b", "aaaa", "aaaA");
        add("a b c", "aabbb", "aabbB");
        add("a b", "aaz", "aaz");
        add("a \xD7\x90 b", "aaaaaa", "aaaaaA");
        add("ab", "aa", "aa");
    }

    void runsChangeAtBlanks()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, styles);
        QFETCH(QByteArray, broken);
        std::vector<unsigned char> bytes;
        for (const char style : std::as_const(styles))
            bytes.push_back(static_cast<unsigned char>(style - 'a'));
        breakLongRuns(text, bytes);
        QByteArray shown;
        for (const unsigned char style : bytes)
            shown += static_cast<char>(style < twinDistance ? 'a' + style : 'A' + style - twinDistance);
        QCOMPARE(shown, broken);
    }

    void aLongLineIsMadeOfShortRuns()
    {
        EditorFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(onePageLine());
        f.editor.colouring().colourAll();
        qsizetype longest = 0;
        qsizetype begin = 0;
        for (qsizetype i = 1; i < f.editor.engine().length(); ++i) {
            if (rawStyle(f, i) != rawStyle(f, i - 1))
                begin = i;
            longest = std::max(longest, i + 1 - begin);
        }
        QVERIFY2(longest < 30, qPrintable(QString::number(longest)));
    }

    void theStylesOfALongLineReadAsThoseOfAShortOne()
    {
        EditorFixture lengthy;
        EditorFixture brief;
        for (EditorFixture *f : {&lengthy, &brief}) {
            f->show();
            f->editor.setLanguage(u"HTML"_s);
        }
        lengthy.editor.setText(onePageLine());
        brief.editor.setText(onePageLine().first(200));
        for (EditorFixture *f : {&lengthy, &brief})
            f->editor.colouring().colourAll();
        for (qsizetype i = 0; i < 200; ++i) {
            QCOMPARE(lengthy.editor.engine().styleAt(i), brief.editor.engine().styleAt(i));
            QVERIFY(rawStyle(brief, i) < twinDistance);
        }
    }

    void twinsLookAlike()
    {
        EditorFixture f;
        f.editor.setColor(KeywordFore, 0x123456);
        f.editor.setColor(CommentBack, 0x654321);
        f.editor.setColor(WindowColour, 0xfefefe);
        f.editor.setFontStyle(KeywordFont, BoldStyle);
        f.editor.setFontStyle(CommentFont, ItalicStyle | UnderlinedStyle);
        for (int style = 0; style < syntaxStyleCount; ++style) {
            for (const unsigned question :
                 {Sci::SCI_STYLEGETFORE, Sci::SCI_STYLEGETBACK, Sci::SCI_STYLEGETBOLD, Sci::SCI_STYLEGETITALIC,
                  Sci::SCI_STYLEGETUNDERLINE, Sci::SCI_STYLEGETSIZEFRACTIONAL, Sci::SCI_STYLEGETVISIBLE})
                QCOMPARE(f.editor.engine().send(question, style + twinDistance),
                         f.editor.engine().send(question, style));
        }
    }

    void undoAndRedoOfALongLine()
    {
        EditorFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<p>before</p>"_s);
        f.editor.setText(onePageLine());
        f.editor.viewport()->repaint();
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"<p>before</p>"_s);
        f.editor.redo();
        QCOMPARE(f.editor.text(), onePageLine());
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETVISIBLE, int(SyntaxStyle::Text)), 1);
        // The line of the caret has its styles, and the caret is visible.
        QCOMPARE(f.editor.engine().styleAt(1), int(SyntaxStyle::TagElement));
        const qsizetype x = f.editor.engine().send(Sci::SCI_POINTXFROMPOSITION, 0, f.editor.engine().caret());
        QVERIFY(x >= 0 && x < f.editor.width());
    }
};

ZEPHIRA_TEST(TstLongRuns)
#include "tst_longruns.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/colouritems.h"
#include "editor/editorfixture.h"
#include "editor/longruns.h"
#include "support/pace.h"
#include "support/testregistry.h"
#include "syntax/syntaxstyle.h"

#include <QRandomGenerator>
#include <QSet>
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
        add("a \xD0\xB6", "aaaa", "aaAA");
        add("a e\xCC\x81", "aaaaa", "aaAAA");
        add("a \xCC\x81", "aaaa", "aaaa");
        add("\xE4\xB8\xAD\xE6\x96\x87\xE5\xAD\x97", "aaaaaaaaa", "aaaAAAaaa");
        add("\xE0\xB9\x81\xE0\xB8\xA1", "aaaaaa", "aaaaaa");
        add("\xD9\x85 \xD9\x85", "aaaaa", "aaaaa");
        add("abcdefghijklmnopqrstuvwxyz0123", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", "aaaaaaaaaaaaaaaaaaaaaaaaAAaaAA");
        add("abcdefghijklmnopqrstuvwx yz", "aaaaaaaaaaaaaaaaaaaaaaaaaaa", "aaaaaaaaaaaaaaaaaaaaaaaaAaa");
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

    /// The engine remembers the widths of runs below 30 bytes, where there aren't too many different ones.
    void aLongLineIsMadeOfShortRuns_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("line");
        QTest::newRow("words") << u"HTML"_s << onePageLine();
        QTest::newRow("without a language") << QString() << onePageLine();
        QString letters;
        QRandomGenerator dice(7);
        while (letters.size() < 2 * longLineBytes)
            letters += QChar(u'0' + dice.bounded(74));
        letters.remove(u'"');
        QTest::newRow("a picture in letters") << u"HTML"_s << QString(u"<img src=\"data:,"_s + letters + u"\">"_s);
        QTest::newRow("letters without a language") << QString() << letters;
        QString signs;
        while (signs.size() < longLineBytes)
            signs += QChar(0x4e00 + dice.bounded(0x3000));
        QTest::newRow("ideographs") << u"HTML"_s << signs;
        QTest::newRow("other words") << u"HTML"_s << u"широка страна моя "_s.repeated(longLineBytes / 20);
    }
    void aLongLineIsMadeOfShortRuns()
    {
        QFETCH(QString, language);
        QFETCH(QString, line);
        EditorFixture f;
        f.show();
        f.editor.setLanguage(language);
        f.editor.setText(line);
        f.editor.colouring().colourAll();
        QVERIFY(f.editor.colouring().hasLongLines());
        const QByteArray text = line.toUtf8();
        QSet<QByteArray> runs;
        qsizetype longest = 0;
        qsizetype begin = 0;
        for (qsizetype i = 1; i <= text.size(); ++i) {
            if (i < text.size() && rawStyle(f, i) == rawStyle(f, i - 1))
                continue;
            longest = std::max(longest, i - begin);
            runs.insert(text.sliced(begin, i - begin));
            begin = i;
        }
        QVERIFY2(longest < pace * 30, qPrintable(QString::number(longest)));
        QVERIFY2(runs.size() < 16384, qPrintable(QString::number(runs.size())));
        QVERIFY(f.editor.engine().send(Sci::SCI_GETPOSITIONCACHE) >= 2 * runs.size());
    }

    /// Short lines stay in one style, and nothing is styled twice.
    void textWithoutALanguageIsPassedOver()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"one two three\r\n"_s.repeated(1000));
        f.editor.colouring().colourAll();
        QCOMPARE(f.editor.colouring().work(), 0);
        QVERIFY(!f.editor.colouring().hasLongLines());
        QCOMPARE(rawStyle(f, 5), 0);
        f.editor.setText(onePageLine() + u"\r\nshort line"_s);
        f.editor.colouring().colourAll();
        const qint64 once = f.editor.colouring().work();
        QCOMPARE(once, onePageLine().size() + 2);
        f.editor.viewport()->repaint();
        QCOMPARE(f.editor.colouring().work(), once);
        QVERIFY(!f.editor.colouring().isPending());
    }

    /// A key lets the colouring look at its line once.
    void aKeyIsOnePassOverItsLine()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"abcdefghij"_s.repeated(longLineBytes));
        f.editor.viewport()->repaint();
        const qint64 before = f.editor.colouring().work();
        QTest::keyClick(&f.editor, Qt::Key_X);
        f.editor.viewport()->repaint();
        QCOMPARE(f.editor.colouring().work() - before, f.editor.engine().length());
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
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETVISIBLE, static_cast<int>(SyntaxStyle::Text)), 1);
        // The line of the caret has its styles, and the caret is visible.
        QCOMPARE(f.editor.engine().styleAt(1), static_cast<int>(SyntaxStyle::TagElement));
        const qsizetype x = f.editor.engine().send(Sci::SCI_POINTXFROMPOSITION, 0, f.editor.engine().caret());
        QVERIFY(x >= 0 && x < f.editor.width());
    }
};

ZEPHIRA_TEST(TstLongRuns)
#include "tst_longruns.moc"

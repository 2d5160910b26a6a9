// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/colouritems.h"
#include "editor/editorfixture.h"
#include "editor/editormargins.h"
#include "support/sourcefolder.h"
#include "support/testregistry.h"
#include "widgets/qtvalues.h"

#include <QSet>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

namespace {

/// Every kind of colour in a few lines: an HTML page with a script and a server block.
const QString page = u"<!DOCTYPE html>\r\n"
                     "<!-- comment -->\r\n"
                     "<p class=\"x\" odd>text &amp; 5</p>\r\n"
                     "<script>\r\n"
                     "function f(a) {\r\n"
                     "return 12 + 'x';\r\n"
                     "}\r\n"
                     "</script>\r\n"
                     "<odd>\r\n"_s;

void showPage(EditorFixture &f)
{
    f.editor.setLanguage(u"HTML"_s);
    f.editor.setText(page);
    f.editor.setDisplayLeftMargin(true);
    f.editor.margins().toggleBookmark(1);
    f.editor.setHighlightedLine(7);
    f.show(500, 300);
    f.waitForColours();
}

} // namespace

class TstCodeMaxLooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyColourReadsBackExactly()
    {
        EditorFixture f;
        for (const quint32 colour : {0u, 0xffffffu, 0x123456u, 0xfffffffeu, automaticColour}) {
            for (int item = 0; item < colourItemTotal; ++item)
                f.editor.setColor(item, colour + static_cast<quint32>(item) * (colour == 0x123456));
            for (int item = 0; item < colourItemTotal; ++item)
                QCOMPARE(f.editor.color(item), colour + static_cast<quint32>(item) * (colour == 0x123456));
        }
    }

    void everyStyleReadsBackExactly()
    {
        EditorFixture f;
        for (int item = 0; item < fontStyleTotal; ++item)
            f.editor.setFontStyle(item, item * 7);
        for (int item = 0; item < fontStyleTotal; ++item)
            QCOMPARE(f.editor.fontStyle(item), item * 7);
    }

    void numbersOutsideAreLeftAlone()
    {
        EditorFixture f;
        for (const int item : {-1, 31, 1000}) {
            f.editor.setColor(item, 5);
            QCOMPARE(f.editor.color(item), 0u);
            f.editor.setFontStyle(item, 1);
            QCOMPARE(f.editor.fontStyle(item), 0);
        }
        f.editor.setFontStyle(fontStyleTotal, 1);
        QCOMPARE(f.editor.fontStyle(fontStyleTotal), 0);
    }

    void aNegativeColourByNameIsTheAutomaticOne()
    {
        EditorFixture f;
        f.editor.SetColor(TextBack, -1);
        QCOMPARE(f.editor.GetColor(TextBack), -1);
        QCOMPARE(f.editor.color(TextBack), automaticColour);
    }

    void everyColourShows_data()
    {
        QTest::addColumn<int>("item");
        for (int item = 0; item < colourItemTotal; ++item)
            QTest::addRow("item %d", item) << item;
    }
    /// Setting the colour of any item changes the picture.
    void everyColourShows()
    {
        QFETCH(int, item);
        EditorFixture f;
        showPage(f);
        const QImage before = f.editor.grab().toImage();
        f.editor.setColor(item, 0x1287fa);
        f.waitForColours();
        QVERIFY2(f.editor.grab().toImage() != before, qPrintable(u"item %1 shows nothing"_s.arg(item)));
    }

    void everyStyleShows_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<int>("style");
        for (int item = 0; item < fontStyleTotal; ++item) {
            for (const int style : {1, 2, 3, 4})
                QTest::addRow("item %d, style %d", item, style) << item << style;
        }
    }
    void everyStyleShows()
    {
        QFETCH(int, item);
        QFETCH(int, style);
        EditorFixture f;
        showPage(f);
        const QImage before = f.editor.grab().toImage();
        f.editor.setFontStyle(item, style);
        f.waitForColours();
        QVERIFY(f.editor.grab().toImage() != before);
        f.editor.setFontStyle(item, 0);
        f.waitForColours();
        QCOMPARE(f.editor.grab().toImage(), before);
    }

    void anAutomaticBackgroundIsTheWindows()
    {
        EditorFixture f;
        f.editor.setColor(WindowColour, 0x303030);
        f.editor.setColor(CommentBack, automaticColour);
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETBACK, 5), 0x303030);
        f.editor.setColor(WindowColour, 0x404040);
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETBACK, 5), 0x404040);
        f.editor.setColor(CommentBack, 0x00ff00);
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETBACK, 5), 0x00ff00);
    }

    void aTextWithoutColoursNeedsNoFurtherFonts()
    {
        EditorFixture f;
        for (int item = 0; item < fontStyleTotal; ++item)
            f.editor.setFontStyle(item, BoldStyle);
        const auto isBold = [&](int style) { return f.editor.engine().send(Sci::SCI_STYLEGETBOLD, style) != 0; };
        QVERIFY(isBold(0));
        QVERIFY(!isBold(2));
        f.editor.setLanguage(u"HTML"_s);
        for (int style = 0; style <= 10; ++style)
            QVERIFY(isBold(style));
        f.editor.setLanguage({});
        QVERIFY(isBold(2));
        QCOMPARE(f.editor.fontStyle(KeywordFont), static_cast<int>(BoldStyle));
    }

    void theFontReachesEveryStyle()
    {
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setFontStyle(KeywordFont, 1);
        f.editor.setEditorFont({u"Liberation Mono"_s, 14.5, false, true, false, true});
        for (int style = 0; style <= 10; ++style) {
            QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETSIZEFRACTIONAL, style), 1450);
            QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETITALIC, style), 1);
            QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETUNDERLINE, style), 1);
            QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETBOLD, style), style == 2);
        }
        QCOMPARE(f.editor.editorFont(), (FontChoice{u"Liberation Mono"_s, 14.5, false, true, false, true}));
    }

    void eachPropertyOfTheFontShows_data()
    {
        QTest::addColumn<int>("property");
        QTest::newRow("size") << 0;
        QTest::newRow("bold") << 1;
        QTest::newRow("italic") << 2;
        QTest::newRow("strikethrough") << 3;
        QTest::newRow("underline") << 4;
        QTest::newRow("name") << 5;
    }
    void eachPropertyOfTheFontShows()
    {
        QFETCH(int, property);
        EditorFixture f;
        const FontChoice plain{u"Liberation Mono"_s, 10};
        f.editor.setEditorFont(plain);
        f.editor.setText(u"text"_s);
        f.show();
        const QImage before = f.editor.grab().toImage();
        FontChoice font = plain;
        font.size = property == 0 ? 12 : 10;
        font.bold = property == 1;
        font.italic = property == 2;
        font.strikethrough = property == 3;
        font.underline = property == 4;
        font.name = property == 5 ? u"Liberation Serif"_s : font.name;
        f.editor.setEditorFont(font);
        QCOMPARE(f.editor.editorFont(), font);
        QVERIFY(f.editor.grab().toImage() != before);
        f.editor.setEditorFont(plain);
        QCOMPARE(f.editor.grab().toImage(), before);
    }

    void strikethroughFollowsTheText()
    {
        EditorFixture f;
        f.editor.setEditorFont({u"Liberation Mono"_s, 10, false, false, true});
        f.editor.setText(u"one"_s);
        f.editor.select({0, 3, 0, 3});
        f.editor.setSelText(u" two"_s);
        const auto &engine = f.editor.engine();
        for (qsizetype i = 0; i < engine.length(); ++i)
            QVERIFY(engine.send(Sci::SCI_INDICATORALLONFOR, i) != 0);
    }

    void lineNumbersHaveRoom()
    {
        EditorFixture f;
        const auto &engine = f.editor.engine();
        const auto width = [&] { return engine.send(Sci::SCI_GETMARGINWIDTHN, EditorMargins::LineNumbers); };
        f.editor.setText(u"a"_s);
        const auto narrow = width();
        f.editor.setText(QString(20000, u'\n'));
        QVERIFY(width() > narrow);
        QVERIFY(width() >= engine.sendText(Sci::SCI_TEXTWIDTH, Sci::STYLE_LINENUMBER, "20001"));
        f.editor.undo();
        QCOMPARE(width(), narrow);
        engine.send(Sci::SCI_SETZOOM, 6);
        QVERIFY(width() > narrow);
        engine.send(Sci::SCI_SETZOOM, 0);
        f.editor.setLineNumbering(false);
        QCOMPARE(width(), 0);
    }

    void itemsOfTheListAreThoseOfTheTable()
    {
        QSet<int> colours;
        QSet<int> styles;
        for (const AppearanceRow &row : appearanceRows) {
            for (const int item : {row.foreground, row.background}) {
                QVERIFY(item == -1 || !colours.contains(item));
                if (item >= 0)
                    colours.insert(item);
            }
            if (row.fontStyle >= 0)
                styles.insert(row.fontStyle);
        }
        QCOMPARE(colours.size(), colourItemTotal);
        QCOMPARE(styles.size(), fontStyleTotal);
    }

    void theSelectionFollowsTheDesktop()
    {
        EditorFixture f;
        f.editor.setText(u"abc"_s);
        f.show();
        f.editor.select({0, 0, 0, 3});
        const QImage before = f.editor.grab().toImage();
        QPalette palette = f.editor.palette();
        palette.setColor(QPalette::Highlight, Qt::magenta);
        f.editor.setPalette(palette);
        QVERIFY(f.editor.grab().toImage() != before);
    }

    /// A text has a small font for characters without a glyph, however it came; without a text nothing is loaded for it.
    void controlCharactersAreSmall()
    {
        const auto size = [](EditorFixture &f, int style) {
            return f.editor.engine().send(QsciScintillaBase::SCI_STYLEGETSIZEFRACTIONAL, style);
        };
        const int control = QsciScintillaBase::STYLE_CONTROLCHAR;
        const int text = QsciScintillaBase::STYLE_DEFAULT;
        EditorFixture typed;
        typed.show();
        QCOMPARE(size(typed, control), size(typed, text));
        QTest::keyClicks(&typed.editor, u"a"_s);
        QCOMPARE(size(typed, control), size(typed, text) * 4 / 5);
        const auto before = size(typed, control);
        typed.editor.setEditorFont({.name = u"Courier New"_s, .size = 30});
        QVERIFY(size(typed, control) > before);
        QCOMPARE(size(typed, control), size(typed, text) * 4 / 5);
        EditorFixture set;
        set.editor.setText(u"\x01"_s);
        QCOMPARE(size(set, control), size(set, text) * 4 / 5);
    }

    /// A new control has the colours of the shipped settings.
    void newControlsHaveTheShippedColours()
    {
        QFile file(sourcePath(u"data/zephira.ini"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QMap<QString, qint64> shipped;
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            const qsizetype equals = line.indexOf('=');
            shipped[QString::fromLatin1(line.left(equals))] = line.mid(equals + 1).trimmed().toLongLong();
        }
        for (std::size_t row = 0; row < appearanceRows.size(); ++row) {
            const auto check = [&](int item, const QString &part) {
                if (item == noItem)
                    return;
                const quint32 colour = static_cast<quint32>(shipped.value(u"clr%1%2"_s.arg(row).arg(part), 77));
                QCOMPARE(shippedColours[static_cast<std::size_t>(item)], colour);
            };
            check(appearanceRows[row].foreground, u"fr"_s);
            check(appearanceRows[row].background, u"bg"_s);
        }
    }

    void shippedColoursAreDarkOnADarkDesktop()
    {
        EditorFixture f;
        showPage(f);
        const QImage light = f.editor.grab().toImage();
        const QPalette before = f.editor.palette();
        QVERIFY(paper(f).lightness() > 200);
        darken(f);
        QVERIFY(paper(f).lightness() < 60);
        // A colour that was set reads back unchanged.
        QCOMPARE(f.editor.color(WindowColour), 0xffffffu);
        for (int item = 0; item < colourItemTotal; ++item)
            QCOMPARE(f.editor.color(item), shippedColours[static_cast<std::size_t>(item)]);
        f.editor.setPalette(before);
        f.waitForColours();
        QCOMPARE(f.editor.grab().toImage(), light);
    }

    /// Every text is readable in the dark colours: WCAG demands a contrast of 4.5.
    void darkColoursAreReadable()
    {
        const auto luminance = [](quint32 number) {
            const QColor colour = toQColor(number);
            const auto part = [](double share) {
                return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
            };
            return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
        };
        const auto darkOf = [](int item) { return colourItemTable[static_cast<std::size_t>(item)].dark; };
        for (const AppearanceRow &row : appearanceRows) {
            if (row.fontStyle == noItem)
                continue;
            const quint32 back =
                darkOf(row.background) == automaticColour ? darkOf(WindowColour) : darkOf(row.background);
            for (const quint32 behind : {back, darkOf(HighlightedLineColour)}) {
                const double contrast = (luminance(darkOf(row.foreground)) + 0.05) / (luminance(behind) + 0.05);
                QVERIFY2(contrast >= 4.5, qPrintable(QString::fromUtf16(row.name)));
            }
        }
    }

    void chosenColoursStayOnADarkDesktop()
    {
        EditorFixture f;
        showPage(f);
        f.editor.setColor(WindowColour, 0xf0fff0);
        darken(f);
        QCOMPARE(paper(f), QColor(0xf0, 0xff, 0xf0));
        // The text colour that goes with it stays the shipped one.
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETFORE, 0), 0x33291f);
        f.editor.setColor(WindowColour, 0xffffff);
        QVERIFY(paper(f).lightness() < 60);
        f.editor.setColor(KeywordFore, 0x0000ff);
        QCOMPARE(f.editor.engine().send(Sci::SCI_STYLEGETFORE, 2), 0x0000ff);
        QVERIFY(paper(f).lightness() < 60);
    }

private:
    static void darken(EditorFixture &f)
    {
        QPalette palette = f.editor.palette();
        palette.setColor(QPalette::Base, QColor(30, 30, 30));
        palette.setColor(QPalette::Text, QColor(230, 230, 230));
        f.editor.setPalette(palette);
        f.waitForColours();
    }

    static QColor paper(EditorFixture &f)
    {
        const QImage picture = f.editor.viewport()->grab().toImage();
        return picture.pixelColor(picture.width() - 20, picture.height() - 20);
    }
};

ZEPHIRA_TEST(TstCodeMaxLooks)

} // namespace zephira

#include "tst_codemaxlooks.moc"

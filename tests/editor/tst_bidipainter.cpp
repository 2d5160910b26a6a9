// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bidipainter.h"
#include "editor/editorfixture.h"
#include "editor/editormargins.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QStyleHints>

#include <algorithm>

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

namespace {

/// Clicks that follow each other by more than 20 ms are single ones while this exists.
class ShortDoubleClicks
{
public:
    ShortDoubleClicks() { QGuiApplication::styleHints()->setMouseDoubleClickInterval(interval); }
    ShortDoubleClicks(const ShortDoubleClicks &) = delete;
    ~ShortDoubleClicks() { QGuiApplication::styleHints()->setMouseDoubleClickInterval(m_before); }

    /// Waits until the next click is a new one.
    static void pass() { QTest::qWait(interval + 5); }

private:
    static constexpr int interval = 20;
    const int m_before = QGuiApplication::styleHints()->mouseDoubleClickInterval();
};

} // namespace

class TstBidiPainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stretchesReadFromRightToLeft_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("styles"); // one per character
        QTest::addColumn<QStringList>("stretches");
        QTest::newRow("none") << u"abc"_s << u"000"_s << QStringList();
        QTest::newRow("a word") << u"שלום"_s << u"0000"_s << QStringList{u"שלום"_s};
        QTest::newRow("two words") << u"x של ום."_s << u"00000000"_s << QStringList{u"של ום"_s};
        QTest::newRow("a Latin word between") << u"של x ום"_s << u"0000000"_s << QStringList{u"של"_s, u"ום"_s};
        QTest::newRow("a number after it") << u"של 12 x"_s << u"0000000"_s << QStringList{u"של 12"_s};
        QTest::newRow("Arabic") << u"<سلام>"_s << u"000000"_s << QStringList{u"سلام"_s};
        QTest::newRow("another style") << u"של ום"_s << u"00011"_s << QStringList{u"של"_s, u"ום"_s};
        QTest::newRow("a tab") << u"של\tום"_s << u"00000"_s << QStringList{u"של"_s, u"ום"_s};
        QTest::newRow("vowel signs") << u"שָׁלוֹם"_s << u"0000000"_s << QStringList{u"שָׁלוֹם"_s};
        QTest::newRow("dashes and quotes alone") << u"–“x”…"_s << u"00000"_s << QStringList();
    }
    void stretchesReadFromRightToLeft()
    {
        QFETCH(QString, line);
        QFETCH(QString, styles);
        const QByteArray utf8 = line.toUtf8();
        std::vector<unsigned char> bytes;
        for (qsizetype i = 0; i < line.size(); ++i)
            bytes.insert(bytes.end(), static_cast<std::size_t>(QString(line[i]).toUtf8().size()),
                         static_cast<unsigned char>(styles[i].unicode()));
        QStringList stretches;
        for (const BidiStretch &stretch : bidiStretches(utf8, bytes))
            stretches += QString::fromUtf8(utf8.mid(stretch.start, stretch.end - stretch.start));
        QTEST(stretches, "stretches");
    }

    /// A line that begins with a right-to-left letter must not stay blank.
    void everyLetterLeavesInk_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("Hebrew") << u"שלום עולם"_s;
        QTest::newRow("in a tag") << u"<p>שלום עולם</p>"_s;
        QTest::newRow("mixed") << u"שלום abc עולם 123 (x)"_s;
        QTest::newRow("Arabic") << u"مرحبا بالعالم"_s;
        QTest::newRow("in an attribute") << u"<a title=\"שלום\">مرحبا</a>"_s;
    }
    void everyLetterLeavesInk()
    {
        QFETCH(QString, line);
        EditorFixture f;
        f.show();
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(line);
        f.waitForColours();
        const QImage picture = f.editor.viewport()->grab().toImage();
        for (qsizetype i = 0; i < line.size(); ++i) {
            if (!QChar::isLetter(line[i].unicode()))
                continue;
            const QRectF box = boxOf(f, line, i);
            QVERIFY2(inkIn(picture, box), qPrintable(u"no ink in %1 of %2"_s.arg(line[i]).arg(line)));
        }
    }

    /// Characters don't overlap: the boxes of a line's characters follow each other.
    void charactersStandBesideEachOther()
    {
        EditorFixture f;
        f.show();
        const QString line = u"<p>שלום עולם</p>"_s;
        f.editor.setText(line);
        std::vector<std::pair<double, double>> boxes;
        for (qsizetype i = 0; i < line.size(); ++i) {
            const QRectF box = boxOf(f, line, i);
            boxes.emplace_back(box.left(), box.right());
        }
        std::ranges::sort(boxes);
        for (std::size_t i = 1; i < boxes.size(); ++i) {
            QVERIFY(boxes[i].second - boxes[i].first > 2);
            QVERIFY(boxes[i].first >= boxes[i - 1].second - 1);
        }
        // Right to left: the first letter is the rightmost.
        QVERIFY(boxOf(f, line, 3).left() > boxOf(f, line, 11).left());
        QVERIFY(boxOf(f, line, 12).left() > boxOf(f, line, 3).left());
    }

    void clicksLandInFrontOfTheLetterThatTheyHit_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("Hebrew") << u"שלום עולם"_s;
        QTest::newRow("in a tag") << u"<p>שלום עולם</p>"_s;
        QTest::newRow("mixed") << u"שלום abc עולם"_s;
    }
    void clicksLandInFrontOfTheLetterThatTheyHit()
    {
        QFETCH(QString, line);
        const ShortDoubleClicks shortly;
        EditorFixture f;
        f.show();
        f.editor.setText(line);
        f.editor.viewport()->repaint();
        for (qsizetype i = 0; i < line.size(); ++i) {
            const QRectF box = boxOf(f, line, i);
            const bool leftward = line[i].direction() == QChar::DirR;
            // A little after the letter's beginning, in reading direction.
            const double x = leftward ? box.right() - box.width() / 4 : box.left() + box.width() / 4;
            if (line[i] == u' ')
                continue;
            QTest::mouseClick(f.editor.viewport(), Qt::LeftButton, {}, QPointF(x, box.center().y()).toPoint());
            QCOMPARE(f.editor.selection(false).EndColNo, static_cast<int>(i));
            ShortDoubleClicks::pass();
        }
    }

    void aDoubleClickSelectsTheWordThatItHits()
    {
        const ShortDoubleClicks shortly;
        EditorFixture f;
        f.show();
        const QString line = u"שלום עולם abc"_s;
        f.editor.setText(line);
        const auto doubleClick = [&](qsizetype index) {
            const QPoint at = boxOf(f, line, index).center().toPoint();
            QTest::mouseClick(f.editor.viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(f.editor.viewport(), Qt::LeftButton, {}, at);
            ShortDoubleClicks::pass();
        };
        doubleClick(6);
        QCOMPARE(f.editor.selText(), u"עולם"_s);
        doubleClick(11);
        QCOMPARE(f.editor.selText(), u"abc"_s);
    }

    void selectedLettersShowIt()
    {
        EditorFixture f;
        f.show();
        const QString line = u"<p>שלום עולם</p>"_s;
        f.editor.setText(line);
        f.editor.select({0, 3, 0, 7});
        const QImage picture = f.editor.viewport()->grab().toImage();
        const auto cornerOf = [&](qsizetype index) {
            const QRectF box = boxOf(f, line, index);
            return picture.pixelColor(QPointF(box.center().x(), box.top() + 1).toPoint());
        };
        QCOMPARE(cornerOf(4), f.editor.appearance().selectionColour(true));
        QVERIFY(cornerOf(9) != f.editor.appearance().selectionColour(true));
    }

    void theHighlightedLineIsHighlightedBehindIt()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"שלום עולם"_s);
        f.editor.setColor(HighlightedLineColour, 0x00ffff);
        f.editor.setHighlightedLine(0);
        const QImage picture = f.editor.viewport()->grab().toImage();
        const QRectF box = boxOf(f, u"שלום עולם"_s, 4);
        QCOMPARE(picture.pixelColor(box.center().toPoint()), QColor(255, 255, 0));
    }

    void typingGoesWhereTheCaretIs()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"שלום"_s);
        f.editor.select({0, 2, 0, 2});
        f.type(u"אב"_s);
        QCOMPARE(f.editor.text(), u"שלאבום"_s);
        QTest::keyClick(&f.editor, Qt::Key_Backspace);
        QCOMPARE(f.editor.text(), u"שלאום"_s);
        f.editor.undo();
        QVERIFY(boxOf(f, u"שלאבום"_s, 3).width() > 2);
    }

    void wrappedLinesAreOrderedByRows()
    {
        EditorFixture f;
        f.show(300, 300);
        EditorOptions options;
        options.wordWrap = true;
        f.editor.setOptions(options);
        const QString line = u"שלום עולם "_s.repeated(12);
        f.editor.setText(line);
        f.editor.viewport()->repaint();
        const QImage picture = f.editor.viewport()->grab().toImage();
        double lowest = 0;
        for (qsizetype i = 0; i < line.size(); ++i) {
            if (line[i] == u' ')
                continue;
            const QRectF box = boxOf(f, line, i);
            QVERIFY2(inkIn(picture, box), qPrintable(QString::number(i)));
            QVERIFY(box.right() <= f.editor.viewport()->width());
            lowest = std::max(lowest, box.top());
        }
        QVERIFY(lowest > 20);
    }

    /// The scroll bar's range covers the whole line.
    void theLineHasItsWidth()
    {
        EditorFixture f;
        f.show(300, 200);
        const QString line = u"שלום עולם "_s.repeated(20);
        f.editor.setText(line);
        f.editor.viewport()->repaint();
        QVERIFY(f.editor.engine().send(Sci::SCI_GETSCROLLWIDTH) > 20 * 10 * 5);
    }

    void zoomingGivesWiderCells()
    {
        EditorFixture f;
        f.show();
        const QString line = u"שלום"_s;
        f.editor.setText(line);
        const double before = boxOf(f, line, 1).width();
        f.editor.engine().send(Sci::SCI_SETZOOM, 10);
        QTRY_VERIFY(boxOf(f, line, 1).width() > before * 1.4);
    }

    /// The line that marks a width of the text goes on through such letters.
    void theEdgeIsSeen()
    {
        EditorFixture f;
        f.show();
        EditorOptions options;
        options.edgeColumn = 6;
        f.editor.setOptions(options);
        f.editor.setColor(MarginDividerColour, 0x0000ff);
        f.editor.setText(u"          \r\n"_s + u"א          א"_s);
        f.editor.select({0, 0, 0, 0});
        const QImage picture = f.editor.viewport()->grab().toImage();
        const auto edgeIn = [&](int line) {
            const SciEngine &engine = f.editor.engine();
            const auto y = static_cast<int>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, engine.lineStart(line))
                                            + engine.send(Sci::SCI_TEXTHEIGHT, 0) / 2);
            for (int x = static_cast<int>(f.editor.margins().width()); x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == QColor(Qt::red))
                    return x;
            }
            return -1;
        };
        QVERIFY(edgeIn(0) > 0);
        QCOMPARE(edgeIn(1), edgeIn(0));
    }

    /// The caret of a drag stands where the text lands.
    void aDropLandsWhereItIsShown_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("letter"); // whose first half, as it is read, is pointed at
        QTest::addColumn<QString>("after");
        QTest::newRow("in Hebrew") << u"abc שלום עולם"_s << 5 << u"abc שXלום עולם"_s;
        QTest::newRow("at its other end") << u"abc שלום עולם"_s << 12 << u"abc שלום עולXם"_s;
        QTest::newRow("in front of it") << u"abc שלום"_s << 1 << u"aXbc שלום"_s;
        QTest::newRow("beside a vowel sign") << u"שָׁלוֹם"_s << 3 << u"שָׁXלוֹם"_s;
    }
    void aDropLandsWhereItIsShown()
    {
        QFETCH(QString, line);
        QFETCH(int, letter);
        QFETCH(QString, after);
        EditorFixture f;
        f.show();
        f.editor.setText(line);
        f.editor.viewport()->repaint();
        const QRectF box = boxOf(f, line, letter);
        const bool leftward = line[letter].direction() == QChar::DirR;
        const double start = leftward ? box.right() : box.left();
        const QPointF at(start + (leftward ? -1 : 1) * box.width() / 4, box.center().y());
        QMimeData data;
        data.setText(u"X"_s);
        QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.editor.viewport(), &enter);
        QVERIFY(enter.isAccepted());
        const QImage before = f.editor.viewport()->grab().toImage();
        QVERIFY(!inkIn(before, QRectF(at.x() + 200, at.y(), 5, 5)));
        QVERIFY2(hasColumnOfCaret(before, start), "no caret is shown there");
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.editor.viewport(), &drop);
        QCOMPARE(f.editor.text(), after);
    }

    void aDragThatLeavesTakesItsCaretAlong()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"שלום עולם"_s);
        f.editor.clearFocus();
        const QImage before = f.editor.viewport()->grab().toImage();
        QMimeData data;
        data.setText(u"X"_s);
        const QRectF box = boxOf(f, u"שלום עולם"_s, 2);
        QDragEnterEvent enter(box.center().toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(f.editor.viewport(), &enter);
        QVERIFY(f.editor.viewport()->grab().toImage() != before);
        QDragLeaveEvent leave;
        QApplication::sendEvent(f.editor.viewport(), &leave);
        QCOMPARE(f.editor.viewport()->grab().toImage(), before);
    }

    /// In a line of any length.
    void aLongLineLeavesInk_data()
    {
        QTest::addColumn<QString>("words");
        QTest::newRow("Hebrew alone") << u"שלום עולם "_s;
        QTest::newRow("mixed") << u"שלום abc עולם 12, "_s;
    }
    void aLongLineLeavesInk()
    {
        QFETCH(QString, words);
        EditorFixture f;
        f.show(400, 200);
        const QString line = words.repeated(300'000 / words.toUtf8().size() + 1);
        f.editor.setText(line);
        const qsizetype middle = line.size() / 2;
        for (const qsizetype first : {static_cast<qsizetype>(0), middle, line.size() - 20}) {
            f.editor.select({0, static_cast<int>(first), 0, static_cast<int>(first)});
            f.editor.engine().send(Sci::SCI_SCROLLCARET);
            const QImage picture = f.editor.viewport()->grab().toImage();
            int seen = 0;
            // What is read first may stand far to the right.
            for (qsizetype i = std::max<qsizetype>(first - 1200, 0); i < std::min(first + 1200, line.size()); ++i) {
                const QRectF box = boxOf(f, line, i);
                if (!line[i].isLetter() || box.left() < static_cast<double>(f.editor.margins().width())
                    || box.right() > picture.width())
                    continue;
                QVERIFY2(inkIn(picture, box), qPrintable(QString::number(i)));
                ++seen;
            }
            QVERIFY2(seen > 5, qPrintable(QString::number(first)));
        }
    }

private:
    /// Whether a caret, which is two pixels wide, stands at an x.
    static bool hasColumnOfCaret(const QImage &picture, double x)
    {
        for (int column = static_cast<int>(x) - 2; column <= static_cast<int>(x) + 2; ++column) {
            int dark = 0;
            for (int y = 0; y < 30; ++y)
                dark += column >= 0 && qGray(picture.pixel(column, y)) < 90;
            if (dark >= 8)
                return true;
        }
        return false;
    }

    /// Where a character of the first line is seen.
    static QRectF boxOf(EditorFixture &f, const QString &line, qsizetype index)
    {
        const SciEngine &engine = f.editor.engine();
        const qsizetype position = line.left(index).toUtf8().size();
        const QRectF stretch = f.editor.bidi().characterRect(position);
        if (!stretch.isEmpty())
            return stretch;
        const auto x = [&](qsizetype at) {
            return static_cast<double>(engine.send(Sci::SCI_POINTXFROMPOSITION, 0, at));
        };
        const double y = static_cast<double>(engine.send(Sci::SCI_POINTYFROMPOSITION, 0, position));
        return {x(position), y, x(engine.send(Sci::SCI_POSITIONAFTER, position)) - x(position),
                static_cast<double>(engine.send(Sci::SCI_TEXTHEIGHT, 0))};
    }

    /// Whether something is drawn there in a colour other than the background's.
    static bool inkIn(const QImage &picture, const QRectF &box)
    {
        const QRect area = box.toRect().intersected(picture.rect());
        const QColor paper = picture.pixelColor(area.topLeft());
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (std::abs(qGray(picture.pixel(x, y)) - qGray(paper.rgb())) > 60)
                    return true;
            }
        }
        return false;
    }
};

ZEPHIRA_TEST(TstBidiPainter)

} // namespace zephira

#include "tst_bidipainter.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/editorprinter.h"
#include "editor/linepages.h"
#include "support/testregistry.h"
#include "widgets/qtvalues.h"

#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSet>
#include <QTemporaryDir>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

class TstEditorPrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTextIsPrinted_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("fewestPages");
        QTest::addColumn<int>("mostPages");
        QTest::newRow("one page") << 3 << 1 << 1;
        QTest::newRow("several pages") << 300 << 3 << 8;
    }
    void theWholeTextIsPrinted()
    {
        QFETCH(int, lines);
        QFETCH(int, fewestPages);
        QFETCH(int, mostPages);
        QTemporaryDir folder;
        const QString file = folder.filePath(u"out.pdf"_s);
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<p>text</p>\r\n"_s.repeated(lines));
        f.editor.printer().setSetup([&](QPrinter &printer, const std::function<void()> &go) {
            printer.setOutputFileName(file);
            printer.setPageSize(QPageSize(QPageSize::A4));
            go();
        });
        const QString before = f.editor.text();
        f.editor.PrintContents(0, 12);
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        const auto pages = bytes.count("/Type /Page\n");
        QVERIFY2(pages >= fewestPages && pages <= mostPages, QByteArray::number(pages).constData());
        QCOMPARE(f.editor.text(), before);
    }

    /// Text that is read from right to left was left out, or stood over its neighbours.
    void rightToLeftLettersArePrinted_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("Hebrew") << u"שלום"_s;
        QTest::newRow("in a tag") << u"<p>שלום</p>"_s;
        QTest::newRow("mixed") << u"abc שלום def"_s;
    }
    void rightToLeftLettersArePrinted()
    {
        QFETCH(QString, line);
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(line);
        const QByteArray pdf = printed(f);
        QCOMPARE(pdf.count("/Type /Page\n"), 1);
        // A font tells which letters its pictures are of.
        for (const QChar letter : std::as_const(line)) {
            const QByteArray code = '<' + QByteArray::number(letter.unicode(), 16).rightJustified(4, '0') + '>';
            if (letter.direction() == QChar::DirR)
                QVERIFY2(pdf.toLower().contains(code), code.constData());
        }
    }

    /// Each character has ink of its own, in the order of its line.
    void aPageWithThemIsReadable()
    {
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<p>שש</p>\r\n<p>םם</p>\r\n<p></p>"_s);
        f.editor.colouring().colourAll();
        const QImage page = paintedPage(f, 1);
        // The second line is like the first but for what stands between the tags, and as wide as another with two letters.
        const std::array rows{stretchesOfInk(page, 0), stretchesOfInk(page, 1), stretchesOfInk(page, 2)};
        QVERIFY(rows[2].second > rows[2].first);
        const int pair = rows[0].second - rows[2].second;
        QVERIFY2(pair > 12, qPrintable(QString::number(pair)));
        QVERIFY(rows[1].second > rows[2].second + 12);
    }

    void longTextsGetPages()
    {
        EditorFixture f;
        f.editor.setText(u"שלום עולם\r\n"_s.repeated(300) + u"end"_s);
        QImage device(800, 1000, QImage::Format_RGB32);
        QPainter painter(&device);
        LinePages pages(f.editor.engine(), device, painter, [](QPainter &, bool, QRect &, int) {});
        QVERIFY2(pages.count() > 3 && pages.count() < 20, qPrintable(QString::number(pages.count())));
        device.fill(Qt::white);
        pages.paint(pages.count());
        QVERIFY(stretchesOfInk(device, 0).second > 0);
    }

    /// Under a dark palette the text is light, which can't be seen on paper.
    void theColoursAreThoseOfPaper()
    {
        EditorFixture f;
        f.show();
        QPalette dark;
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, Qt::white);
        f.editor.setPalette(dark);
        f.editor.setText(u"<p>text</p>"_s);
        const auto fore = [&] { return f.editor.engine().send(QsciScintillaBase::SCI_STYLEGETFORE, 0); };
        const auto shownDark = fore();
        QVERIFY(toQColor(static_cast<quint32>(shownDark)).lightness() > 128);
        const QByteArray pdf = unpacked(printed(f));
        // The text's own colour stands on the page, as it does under a light palette.
        f.editor.setPalette(QPalette());
        const QByteArray light = unpacked(printed(f));
        QCOMPARE(coloursIn(pdf), coloursIn(light));
        QVERIFY(!coloursIn(pdf).isEmpty());
    }

    void calledOffNothingIsPrinted()
    {
        EditorFixture f;
        f.editor.setText(u"x"_s);
        int asked = 0;
        f.editor.printer().setSetup([&](QPrinter &printer, const std::function<void()> &) {
            ++asked;
            // The desktop's dialog proposes this file name for a text without a name.
            QCOMPARE(printer.docName(), u"Untitled.pdf"_s);
        });
        f.editor.PrintContents(0, 12);
        QCOMPARE(asked, 1);
    }

    void theDesktopsDialogAsks()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"x"_s);
        f.editor.PrintContents(0, 12);
        auto *dialog = f.editor.findChild<QPrintDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QPointer<QPrintDialog> gone(dialog);
        dialog->reject();
        QTRY_VERIFY(!gone);
    }

private:
    static QByteArray printed(EditorFixture &f)
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"out.pdf"_s);
        f.editor.printer().setSetup([&](QPrinter &printer, const std::function<void()> &go) {
            printer.setOutputFileName(file);
            printer.setPageSize(QPageSize(QPageSize::A4));
            go();
        });
        f.editor.PrintContents(0, 12);
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }

    /// The streams of a PDF, unpacked, one behind the other.
    static QByteArray unpacked(const QByteArray &pdf)
    {
        QByteArray result;
        const QByteArray begin = "stream\n";
        for (qsizetype at = pdf.indexOf(begin); at >= 0; at = pdf.indexOf(begin, at)) {
            at += begin.size();
            const qsizetype end = pdf.indexOf("endstream", at);
            // What is unpacked begins with its length, of which this is a guess.
            const QByteArray packed = QByteArray("\0\1\0\0", 4) + pdf.mid(at, end - at);
            if (packed[4] == 'x')
                result += qUncompress(packed);
            at = end + 9;
        }
        return result;
    }

    static QSet<QByteArray> coloursIn(const QByteArray &unpackedPdf)
    {
        QSet<QByteArray> colours;
        const QByteArrayList lines = unpackedPdf.split('\n');
        for (const QByteArray &line : lines) {
            if (line.endsWith(" scn"))
                colours.insert(line);
        }
        return colours;
    }

    static QImage paintedPage(EditorFixture &f, int number)
    {
        QImage device(800, 1000, QImage::Format_RGB32);
        device.fill(Qt::white);
        QPainter painter(&device);
        LinePages pages(f.editor.engine(), device, painter, [](QPainter &, bool, QRect &, int) {});
        pages.paint(number);
        return device;
    }

    /// The first and the last column with ink in one of the page's rows of text, which stand apart from each other.
    static std::pair<int, int> stretchesOfInk(const QImage &page, int row)
    {
        const auto hasInk = [&](int y) {
            for (int x = 0; x < page.width(); ++x) {
                if (qGray(page.pixel(x, y)) < 160)
                    return true;
            }
            return false;
        };
        int y = 0;
        for (int passed = 0;; ++passed) {
            while (y < page.height() && !hasInk(y))
                ++y;
            int end = y;
            while (end < page.height() && hasInk(end))
                ++end;
            if (passed < row) {
                y = end;
                continue;
            }
            std::pair<int, int> found{page.width(), 0};
            for (; y < end; ++y) {
                for (int x = 0; x < page.width(); ++x) {
                    if (qGray(page.pixel(x, y)) < 160)
                        found = {std::min(found.first, x), std::max(found.second, x)};
                }
            }
            return found;
        }
    }
};

ZEPHIRA_TEST(TstEditorPrinter)

} // namespace zephira

#include "tst_editorprinter.moc"

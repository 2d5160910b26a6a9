// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/lineartime.h"
#include "support/testregistry.h"
#include "support/textgenerator.h"
#include "tools/plaintextpage.h"
#include "tools/textpage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString input = u"/texts/a.txt"_s;
const QString output = u"/pages/a.html"_s;
const QStringList pieces{u"\r\n"_s, u"\n"_s, u"\r"_s, u"word"_s, u"<b>"_s, u"&"_s, u" "_s, u"ä"_s, u"😀"_s, u"<BR>"_s};

const QByteArray before = "\r\n<HTML>\r\n\r\n<HEAD>\r\n\r\n<TITLE>No Document Title</TITLE>\r\n\r\n</HEAD>\r\n"
                          "\r\n<BODY bgcolor=white text=black>\r\n";
const QByteArray after = "\r\n\r\n\r\n</BODY>\r\n</HTML>\r\n";

} // namespace

class TstTextPage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("lines");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("one line") << QByteArray("a") << QByteArray("a<BR>\r\n");
        QTest::newRow("with its end") << QByteArray("a\r\n") << QByteArray("a<BR>\r\n");
        QTest::newRow("blank lines") << QByteArray("\r\n\na\r\r") << QByteArray("<BR>\r\n<BR>\r\na<BR>\r\n<BR>\r\n");
        QTest::newRow("nothing is escaped") << QByteArray("a<b>&c\"") << QByteArray("a<b>&c\"<BR>\r\n");
        QTest::newRow("blanks stay") << QByteArray("  a \t") << QByteArray("  a \t<BR>\r\n");
    }

    void lines()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, lines);
        QCOMPARE(textPage(text, {}), before + lines + after);
        QCOMPARE(plainTextPage(QString::fromUtf8(text), {}), before + lines + after);
    }

    void look()
    {
        QCOMPARE(textPage({}, {.title = u"A <b> ä"_s, .backColour = u"#fff"_s, .textColour = u"dark red"_s}),
                 QByteArray("\r\n<HTML>\r\n\r\n<HEAD>\r\n\r\n<TITLE>A <b> \xc3\xa4</TITLE>\r\n\r\n</HEAD>\r\n"
                            "\r\n<BODY bgcolor=#fff text=dark red>\r\n")
                     + after);
    }

    void likeTheLinesOneByOne()
    {
        QRandomGenerator random(71);
        for (int round = 0; round < 10000; ++round) {
            const QString text = generatedText(random, pieces, 20);
            const TextPageLook look{.title = generatedText(random, pieces, 1),
                                    .textColour = generatedText(random, pieces, 1)};
            QCOMPARE(textPage(text.toUtf8(), look), plainTextPage(text, look));
        }
    }

    void tenTimesTheText_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("lines") << u"some words in a line\r\n"_s;
        QTest::newRow("line ends") << u"\n"_s;
        QTest::newRow("one line") << u"word "_s;
    }

    void tenTimesTheText()
    {
        QFETCH(QString, unit);
        const double times = timesForTenTimes([&](qsizetype count) { return unit.repeated(count); }, 40000,
                                              [](const QString &text) { textPage(text.toUtf8(), {}); });
        QVERIFY2(times <= mostOfLinear, qPrintable(QString::number(times)));
    }

    void everyEncoding_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("UTF-8") << QByteArray("\xc3\xa4\n");
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbf\xc3\xa4\n");
        QTest::newRow("Windows-1252") << QByteArray("\xe4\n");
        QTest::newRow("UTF-16, low byte first") << QByteArray("\xff\xfe\xe4\0\n\0", 6);
        QTest::newRow("UTF-16, high byte first") << QByteArray("\xfe\xff\0\xe4\0\n", 6);
    }

    void everyEncoding()
    {
        QFETCH(QByteArray, file);
        MemoryFileStore files;
        files.contents[input] = file;
        QVERIFY(writeTextPage(files, input, output, {}).ok());
        QCOMPARE(files.contents[output], before + "\xc3\xa4<BR>\r\n" + after);
        QCOMPARE(files.contents[input], file);
    }

    void aMissingText()
    {
        MemoryFileStore files;
        files.contents[output] = "old";
        const Result<void> written = writeTextPage(files, input, output, {});
        QVERIFY(!written.ok());
        QCOMPARE(written.error().sentence, u"/texts/a.txt doesn't exist."_s);
        QCOMPARE(files.contents[output], QByteArray("old"));
        QVERIFY(files.log.isEmpty());
    }

    void theTextItself()
    {
        MemoryFileStore files;
        files.contents[input] = "text";
        const Result<void> written = writeTextPage(files, input, input, {});
        QVERIFY(!written.ok());
        QCOMPARE(written.error().sentence,
                 u"The page can't be written: the file \"/texts/a.txt\" is the text file itself."_s);
        QCOMPARE(files.contents[input], QByteArray("text"));
        QVERIFY(files.log.isEmpty());
    }

    void aFullDisk()
    {
        MemoryFileStore files;
        files.contents[input] = "text";
        files.contents[output] = "old";
        files.unwritable[output] = Error{Error::Code::Unwritable, u"The disk is full."_s};
        const Result<void> written = writeTextPage(files, input, output, {});
        QVERIFY(!written.ok());
        QCOMPARE(written.error().sentence, u"The disk is full."_s);
        QCOMPARE(files.contents[output], QByteArray("old"));
        QCOMPARE(files.contents[input], QByteArray("text"));
    }
};

ZEPHIRA_TEST(TstTextPage)

#include "tst_textpage.moc"

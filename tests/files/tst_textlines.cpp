// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/filenumber.h"
#include "files/textlines.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstTextLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("empty") << QString() << QStringList();
        QTest::newRow("no end") << u"a"_s << QStringList{u"a"_s};
        QTest::newRow("CR LF") << u"a\r\nb\r\n"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("LF") << u"a\nb"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("CR") << u"a\rb\r"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("mixed") << u"a\rb\nc\r\nd"_s << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
        QTest::newRow("blank lines") << u"\r\n\r\na\n\n"_s << QStringList{u""_s, u""_s, u"a"_s, u""_s};
        QTest::newRow("an end alone") << u"\n"_s << QStringList{u""_s};
        QTest::newRow("LF CR is two ends") << u"a\n\rb"_s << QStringList{u"a"_s, u""_s, u"b"_s};
        QTest::newRow("blanks and tabs stay") << u" \t a \r\n"_s << QStringList{u" \t a "_s};
        QTest::newRow("any script") << u"привет\n日本\n"_s << QStringList{u"привет"_s, u"日本"_s};
    }

    void lines()
    {
        QFETCH(QString, text);
        QTEST(textLines(text), "lines");
    }

    /// Compared with a straightforward implementation, for all short texts made of the relevant characters.
    void againstAPlainReading()
    {
        const QString alphabet = u"a\r\n"_s;
        for (int number = 0; number < 3 * 3 * 3 * 3 * 3 * 3; ++number) {
            QString text;
            for (int rest = number; text.size() < 6; rest /= 3)
                text += alphabet[rest % 3];
            QStringList expected = QString(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').split(u'\n');
            if (expected.last().isEmpty())
                expected.removeLast();
            QCOMPARE(textLines(text), expected);
        }
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("UTF-8") << QByteArray("gr\xc3\xbcn\n\xe2\x82\xac");
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbfgr\xc3\xbcn\n\xe2\x82\xac");
        QTest::newRow("Windows-1252") << QByteArray("gr\xfcn\n\x80");
        QTest::newRow("UTF-16LE") << QByteArray("\xff\xfeg\0r\0\xfc\0n\0\n\0\xac\x20", 14);
        QTest::newRow("UTF-16BE") << QByteArray("\xfe\xff\0g\0r\0\xfc\0n\0\n\x20\xac", 14);
    }

    void encodings()
    {
        QFETCH(QByteArray, bytes);
        MemoryFileStore files;
        files.contents[u"/a"_s] = bytes;
        const Result<QStringList> lines = readLines(files, u"/a"_s);
        QVERIFY(lines.ok());
        QCOMPARE(lines.value(), (QStringList{u"grün"_s, u"€"_s}));
    }

    void whatIsNoListIsRefused()
    {
        MemoryFileStore files;
        files.contents[u"/long"_s] = QByteArray(maximumLineCount, '\n');
        const Result<QStringList> lines = readLines(files, u"/long"_s);
        QVERIFY(!lines.ok());
        QCOMPARE(lines.error().code, Error::Code::TooLarge);
        QCOMPARE(lines.error().sentence, u"The file \"/long\" could not be read: it has too many lines."_s);
        files.contents[u"/long"_s].chop(1);
        QCOMPARE(readLines(files, u"/long"_s).value().size(), maximumLineCount - 1);
    }

    void binaryDataIsLinesToo()
    {
        MemoryFileStore files;
        QByteArray bytes;
        for (int i = 0; i < 1024; ++i)
            bytes.append(static_cast<char>(i % 256));
        files.contents[u"/a"_s] = bytes;
        const Result<QStringList> lines = readLines(files, u"/a"_s);
        QVERIFY(lines.ok());
        QCOMPARE(lines.value().size(), 9); // Four times an LF and a CR, not adjacent, and the end.
        QCOMPARE(lines.value().join(QString()).size(), 1024 - 8);
    }

    void aNumberIsGivenBackAfterASuccess()
    {
        MemoryFileStore files;
        files.contents[u"/a"_s] = "one\r\ntwo\r\n";
        files.contents[u"/empty"_s] = "";
        FileNumber number(files);
        QCOMPARE(number.linesOf(u"/a"_s).value(), (QStringList{u"one"_s, u"two"_s}));
        QCOMPARE(number.linesOf(u"/empty"_s).value(), QStringList());
        QCOMPARE(number.linesOf(u"/a"_s, 2).value().size(), 2);
    }

    void aNumberIsKeptByAFailure_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("too few lines") << u"/empty"_s << u"Input past end of file"_s;
        QTest::newRow("no such file") << u"/none"_s << u"/none doesn't exist."_s;
    }

    void aNumberIsKeptByAFailure()
    {
        QFETCH(QString, path);
        MemoryFileStore files;
        files.contents[u"/a"_s] = "one";
        files.contents[u"/empty"_s] = "";
        FileNumber number(files);
        QTEST(number.linesOf(path, 1).error().sentence, "sentence");
        QCOMPARE(number.linesOf(u"/a"_s).error().sentence, u"File already open"_s);
        QCOMPARE(number.linesOf(path, 1).error().sentence, u"File already open"_s);
        // Another file number isn't affected.
        QVERIFY(FileNumber(files).linesOf(u"/a"_s).ok());
    }
};

ZEPHIRA_TEST(TstTextLines)
#include "tst_textlines.moc"

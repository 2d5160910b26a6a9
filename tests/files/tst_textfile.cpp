// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textfile.h"
#include "files/utf8.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Encoding, byte order mark and line ends in one word, as in the rows below.
QByteArray describe(const TextFormat &format)
{
    constexpr const char *ends[] = {"crlf", "lf", "cr", "mixed"};
    return encodingName(format.encoding).toUtf8() + (format.byteOrderMark ? " mark " : " plain ")
        + ends[static_cast<int>(format.lineEnds)];
}

void fillWithHostileBytes(QByteArray &bytes, QRandomGenerator &random)
{
    constexpr const char *parts[] = {
        "\xEF\xBB\xBF", "\xFF\xFE",         "\xFE\xFF",     "\r",       "\n",       "\r\n",     "a",
        "\xC3\xA4",     "\xC0\xAF",         "\xED\xA0\x80", "\xD8\x3D", "\x3D\xD8", "\xDE\x00", "\x81\x8D\x8F\x90\x9D",
        "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xA0",         "\x80"};
    for (qsizetype i = random.bounded(7); i > 0; --i) {
        const qsizetype choice = random.bounded(static_cast<int>(std::size(parts)) + 2);
        if (choice < std::ssize(parts))
            bytes.append(parts[choice]);
        else if (choice == std::ssize(parts))
            bytes.append('\0');
        else
            bytes.append(static_cast<char>(random.bounded(256)));
    }
}

} // namespace

class TstTextFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decoding_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("utf8");
        QTest::addColumn<QByteArray>("format");
        const auto row = [](const char *name, const QByteArray &bytes, const QByteArray &utf8,
                            const QByteArray &format) { QTest::newRow(name) << bytes << utf8 << format; };
        row("empty", "", "", "UTF-8 plain crlf");
        row("ASCII", "a\r\nb", "a\r\nb", "UTF-8 plain crlf");
        row("LF", "a\nb\n", "a\nb\n", "UTF-8 plain lf");
        row("CR", "a\rb", "a\rb", "UTF-8 plain cr");
        row("mixed", "a\rb\n", "a\rb\n", "UTF-8 plain mixed");
        row("UTF-8", "\xC3\xA4", "\xC3\xA4", "UTF-8 plain crlf");
        row("NUL", QByteArray("a\0b", 3), QByteArray("a\0b", 3), "UTF-8 plain crlf");
        row("UTF-8 mark",
            "\xEF\xBB\xBF"
            "a",
            "a", "UTF-8 mark crlf");
        row("UTF-8 mark alone", "\xEF\xBB\xBF", "", "UTF-8 mark crlf");
        row("two UTF-8 marks", "\xEF\xBB\xBF\xEF\xBB\xBF", "\xEF\xBB\xBF", "UTF-8 mark crlf");
        row("UTF-8 mark, then invalid", "\xEF\xBB\xBF\xFF", "\xC3\xAF\xC2\xBB\xC2\xBF\xC3\xBF",
            "Windows-1252 plain crlf");
        row("UTF-16LE",
            QByteArray("\xFF\xFE"
                       "a\0\n\0",
                       6),
            "a\n", "UTF-16LE mark lf");
        row("UTF-16BE", QByteArray("\xFE\xFF\0a\0\n", 6), "a\n", "UTF-16BE mark lf");
        row("UTF-16 mark alone", "\xFF\xFE", "", "UTF-16LE mark crlf");
        row("UTF-16LE surrogate pair", "\xFF\xFE\x3D\xD8\x01\xDE", "\xF0\x9F\x98\x81", "UTF-16LE mark crlf");
        row("UTF-16BE surrogate pair", "\xFE\xFF\xD8\x3D\xDE\x01", "\xF0\x9F\x98\x81", "UTF-16BE mark crlf");
        row("UTF-16 NUL", QByteArray("\xFF\xFE\0\0", 4), QByteArray(1, '\0'), "UTF-16LE mark crlf");
        row("UTF-16 odd",
            "\xFF\xFE"
            "a",
            "\xC3\xBF\xC3\xBE"
            "a",
            "Windows-1252 plain crlf");
        row("UTF-16 lone high surrogate", "\xFF\xFE\x3D\xD8", "\xC3\xBF\xC3\xBE=\xC3\x98", "Windows-1252 plain crlf");
        row("UTF-16 lone low surrogate", "\xFE\xFF\xDE\x01", "\xC3\xBE\xC3\xBF\xC3\x9E\x01", "Windows-1252 plain crlf");
        row("Windows-1252", "\x80\x9F\xE4", "\xE2\x82\xAC\xC5\xB8\xC3\xA4", "Windows-1252 plain crlf");
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D", "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D",
            "Windows-1252 plain crlf");
        row("surrogate in UTF-8", "\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC", "Windows-1252 plain crlf");
        row("overlong", "\xC0\xAF", "\xC3\x80\xC2\xAF", "Windows-1252 plain crlf");
        row("cut UTF-8", "a\xC3", "a\xC3\x83", "Windows-1252 plain crlf");
    }

    void decoding()
    {
        QFETCH(QByteArray, bytes);
        const DecodedText text = decodeText(bytes);
        QTEST(text.utf8, "utf8");
        QTEST(describe(text.format), "format");
        QCOMPARE(encodeText(text.utf8, text.format).value(), bytes);
    }

    void everyByteOfWindows1252ComesBack()
    {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes.append(static_cast<char>(byte));
        const DecodedText text = decodeText(bytes);
        QCOMPARE(text.format.encoding, Encoding::Windows1252);
        QCOMPARE(QString::fromUtf8(text.utf8).size(), 256);
        QCOMPARE(encodeText(text.utf8, text.format).value(), bytes);
    }

    void everyInputComesBack()
    {
        QRandomGenerator random(3);
        int perEncoding[4] = {};
        for (int round = 0; round < 300'000; ++round) {
            QByteArray bytes;
            fillWithHostileBytes(bytes, random);
            const DecodedText text = decodeText(bytes);
            ++perEncoding[static_cast<int>(text.format.encoding)];
            if (!isValidUtf8(text.utf8))
                QFAIL(bytes.toHex().constData());
            const Result<QByteArray> encoded = encodeText(text.utf8, text.format);
            if (!encoded || encoded.value() != bytes)
                QFAIL(bytes.toHex().constData());
        }
        for (const int count : perEncoding)
            QVERIFY(count > 500);
    }

    void utf8KeepsItsBuffer()
    {
        QByteArray bytes = QByteArray("a line\n").repeated(1000);
        const char *buffer = bytes.constData();
        QCOMPARE(static_cast<const void *>(decodeText(std::move(bytes)).utf8.constData()),
                 static_cast<const void *>(buffer));
        bytes = "\xEF\xBB\xBF" + QByteArray("a line\n").repeated(1000);
        buffer = bytes.constData();
        QCOMPARE(static_cast<const void *>(decodeText(std::move(bytes)).utf8.constData()),
                 static_cast<const void *>(buffer + 3));
    }

    void unencodable_data()
    {
        QTest::addColumn<QByteArray>("utf8");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, const QByteArray &utf8, const QString &sentence) {
            QTest::newRow(name) << utf8 << sentence;
        };
        row("first line", "a\xD0\x96",
            u"The character \u201C\u0416\u201D (U+0416) in line 1 can't be stored as Windows-1252."_s);
        row("line 3, CR LF", "a\r\nb\r\n\xD0\x96\r\n",
            u"The character \u201C\u0416\u201D (U+0416) in line 3 can't be stored as Windows-1252."_s);
        row("line 4, all kinds", "a\rb\nc\r\n\xD0\x96",
            u"The character \u201C\u0416\u201D (U+0416) in line 4 can't be stored as Windows-1252."_s);
        row("after a CR", "a\r\xD0\x96",
            u"The character \u201C\u0416\u201D (U+0416) in line 2 can't be stored as Windows-1252."_s);
        row("the first of two", "\xE2\x86\x92\n\xD0\x96",
            u"The character \u201C\u2192\u201D (U+2192) in line 1 can't be stored as Windows-1252."_s);
        row("above the basic plane", "\xF0\x9F\x98\x80",
            u"The character \u201C\U0001F600\u201D (U+1F600) in line 1 can't be stored as Windows-1252."_s);
        row("invisible", "\xC2\x80", u"The character (U+0080) in line 1 can't be stored as Windows-1252."_s);
        row("no UTF-8", "a\n\xFF", u"A byte that is not valid UTF-8 in line 2 can't be stored as Windows-1252."_s);
        row("reads as UTF-8", "\xC3\x83\xC2\xA4",
            u"The text can't be stored as Windows-1252, because it would be read back as UTF-8."_s);
        row("reads as UTF-16",
            "\xC3\xBF\xC3\xBE"
            "ab",
            u"The text can't be stored as Windows-1252, because it would be read back as UTF-16."_s);
    }

    void unencodable()
    {
        QFETCH(QByteArray, utf8);
        const Result<QByteArray> bytes = encodeText(utf8, {Encoding::Windows1252});
        QVERIFY(!bytes);
        QCOMPARE(bytes.error().code, Error::Code::Unencodable);
        QTEST(bytes.error().sentence, "sentence");
    }

    void utf16RefusesInvalidBytesAlone()
    {
        const TextFormat format{Encoding::Utf16BE, true};
        QCOMPARE(encodeText("\xF0\x9F\x98\x81", format).value(), QByteArray("\xFE\xFF\xD8\x3D\xDE\x01"));
        QCOMPARE(encodeText("\xED\xA0\x80", format).error().sentence,
                 u"A byte that is not valid UTF-8 in line 1 can't be stored as UTF-16BE."_s);
    }

    void utf8PassesUnexamined()
    {
        QCOMPARE(encodeText("\xFF", {Encoding::Utf8, true}).value(), QByteArray("\xEF\xBB\xBF\xFF"));
    }

    void whatIsEncodedReadsBackTheSame()
    {
        QRandomGenerator random(4);
        int stored = 0;
        for (int round = 0; round < 100'000; ++round) {
            QByteArray bytes;
            fillWithHostileBytes(bytes, random);
            const QByteArray utf8 = decodeText(bytes).utf8;
            for (const TextFormat &format : {TextFormat{Encoding::Windows1252}, TextFormat{Encoding::Utf16LE, true},
                                             TextFormat{Encoding::Utf8, true}}) {
                const Result<QByteArray> encoded = encodeText(utf8, format);
                stored += encoded.ok();
                if (encoded && decodeText(encoded.value()).utf8 != utf8)
                    QFAIL(utf8.toHex().constData());
            }
        }
        QVERIFY(stored > 200'000);
    }
};

ZEPHIRA_TEST(TstTextFile)

} // namespace zephira

#include "tst_textfile.moc"

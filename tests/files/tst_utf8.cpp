// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/utf8.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

namespace zephira {

class TstUtf8 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validity_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("valid");
        const auto row = [](const char *name, const QByteArray &bytes, bool valid) {
            QTest::newRow(name) << bytes << valid;
        };
        row("empty", "", true);
        row("ASCII", "abc", true);
        row("NUL", QByteArray(3, '\0'), true);
        row("two bytes", "\xC2\x80\xDF\xBF", true);
        row("three bytes", "\xE0\xA0\x80\xEF\xBF\xBF", true);
        row("four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", true);
        row("last before the surrogates", "\xED\x9F\xBF", true);
        row("first after the surrogates", "\xEE\x80\x80", true);
        row("lone continuation", "\x80", false);
        row("overlong slash, two bytes", "\xC0\xAF", false);
        row("overlong, two bytes", "\xC1\xBF", false);
        row("overlong, three bytes", "\xE0\x9F\xBF", false);
        row("overlong, four bytes", "\xF0\x8F\xBF\xBF", false);
        row("high surrogate", "\xED\xA0\x80", false);
        row("surrogate pair in six bytes", "\xED\xA0\xBD\xED\xB8\x80", false);
        row("above the last code point", "\xF4\x90\x80\x80", false);
        row("lead F5", "\xF5\x80\x80\x80", false);
        row("lead FF", "\xFF", false);
        row("cut two", "\xC3", false);
        row("cut three", "\xE2\x82", false);
        row("cut four", "\xF0\x9F\x98", false);
        row("second lead in place of a tail", "\xE2\xC3\xA4", false);
    }

    void validity()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, valid);
        // At every offset within the blocks in which ASCII is skipped.
        for (int before = 0; before < 40; ++before) {
            for (const int after : {0, 1, 7, 8, 33})
                QCOMPARE(isValidUtf8(QByteArray(before, 'a') + bytes + QByteArray(after, 'z')), valid);
        }
    }

    /// Wherever the first byte stands that isn't ASCII, and wherever the text begins in memory.
    void asciiEndsAtTheFirstOtherByte()
    {
        const QByteArray ascii = QByteArray(72, '\x7F') + QByteArray(8, '\0');
        for (qsizetype start = 0; start < 8; ++start) {
            for (qsizetype size = 0; size <= 72; ++size) {
                const QByteArrayView whole = QByteArrayView(ascii).sliced(start, size);
                QCOMPARE(asciiLength(whole), size);
                for (qsizetype other = 0; other < size; ++other) {
                    QByteArray text = whole.toByteArray();
                    text[other] = '\x80';
                    text.back() = other % 2 ? '\xFF' : text.back();
                    QCOMPARE(asciiLength(text), other);
                }
            }
        }
    }

    void everyCodePointReadsBack()
    {
        for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
            if (codePoint == 0xD800)
                codePoint = 0xE000;
            char bytes[4];
            const char *end = putUtf8(bytes, codePoint);
            Utf8Reader reader({bytes, end - bytes});
            if (reader.next() != codePoint || !reader.atEnd())
                QFAIL(qPrintable(QString::number(codePoint, 16)));
        }
    }

    void agreesWithTheLibraryOnRandomBytes()
    {
        QRandomGenerator random(1);
        // Few values, so that valid sequences are frequent.
        constexpr unsigned char values[] = {'a', 0x80, 0x90, 0xA0, 0xBF, 0xC2, 0xE0, 0xE1, 0xED, 0xF0, 0xF4};
        int valid = 0;
        for (int round = 0; round < 200'000; ++round) {
            QByteArray bytes;
            for (qsizetype i = random.bounded(8); i > 0; --i)
                bytes.append(static_cast<char>(values[random.bounded(static_cast<int>(std::size(values)))]));
            const QString text = QString::fromUtf8(bytes);
            const bool expected = !text.contains(QChar(QChar::ReplacementCharacter));
            valid += expected;
            QCOMPARE(isValidUtf8(bytes), expected);
        }
        QVERIFY(valid > 1000);
    }

    void readerStaysAtWhatIsInvalid()
    {
        Utf8Reader reader("a\xFFz");
        QCOMPARE(reader.next(), std::optional<char32_t>(U'a'));
        QVERIFY(!reader.next());
        QCOMPARE(reader.rest(), QByteArrayView("\xFFz"));
        QVERIFY(!reader.atEnd());
        QVERIFY(!Utf8Reader("").next());
    }
};

ZEPHIRA_TEST(TstUtf8)

} // namespace zephira

#include "tst_utf8.moc"

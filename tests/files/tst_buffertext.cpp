// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/buffertext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstBufferText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textOfTheBuffer_data()
    {
        QTest::addColumn<QByteArray>("buffer");
        QTest::addColumn<LineEnds>("lineEnds");
        QTest::addColumn<QString>("text");
        QTest::newRow("CR LF stays") << "a\r\nb"_ba << LineEnds::CrLf << u"a\r\nb"_s;
        QTest::newRow("LF") << "a\nb\n"_ba << LineEnds::Lf << u"a\r\nb\r\n"_s;
        QTest::newRow("CR") << "a\rb"_ba << LineEnds::Cr << u"a\r\nb"_s;
        QTest::newRow("mixed stays") << "a\rb\nc\r\n"_ba << LineEnds::Mixed << u"a\rb\nc\r\n"_s;
        QTest::newRow("NUL") << QByteArray("a\0b\n", 4) << LineEnds::Lf << QString::fromUtf16(u"a\0b\r\n", 5);
        QTest::newRow("byte order mark") << "\xef\xbb\xbf\xef\xbb\xbf!"_ba << LineEnds::Lf << u"\ufeff\ufeff!"_s;
        QTest::newRow("empty") << QByteArray() << LineEnds::Lf << QString();
    }
    void textOfTheBuffer()
    {
        QFETCH(QByteArray, buffer);
        QFETCH(LineEnds, lineEnds);
        QFETCH(QString, text);
        QCOMPARE(fromBuffer(buffer, lineEnds), text);
        QCOMPARE(toBuffer(text, lineEnds), buffer);
        // Wherever the gap divides the buffer, even in the middle of a character.
        for (qsizetype cut = 0; cut <= buffer.size(); ++cut) {
            const std::array<QByteArrayView, 2> pieces{QByteArrayView(buffer).first(cut),
                                                       QByteArrayView(buffer).sliced(cut)};
            QCOMPARE(fromBuffer(pieces, lineEnds), text);
        }
    }

    void mostFrequent_data()
    {
        QTest::addColumn<QByteArray>("buffer");
        QTest::addColumn<LineEnds>("expected");
        QTest::newRow("LF") << "a\nb\nc\r\n"_ba << LineEnds::Lf;
        QTest::newRow("CR") << "\r\r\n\r"_ba << LineEnds::Cr;
        QTest::newRow("a tie goes to CR LF") << "\n\r\n"_ba << LineEnds::CrLf;
        QTest::newRow("none") << "abc"_ba << LineEnds::CrLf;
    }
    void mostFrequent()
    {
        QFETCH(QByteArray, buffer);
        QFETCH(LineEnds, expected);
        QCOMPARE(mostFrequentLineEnd(buffer), expected);
    }

    void offsets()
    {
        const QString text = u"aä€\U0001f600z"_s;
        const QByteArray utf8 = text.toUtf8();
        QCOMPARE(utf16Length(utf8), text.size());
        for (qsizetype i = 0; i <= text.size(); ++i) {
            const bool inPair = i > 0 && i < text.size() && text[i].isLowSurrogate();
            QCOMPARE(byteOffset(utf8, i), text.first(inPair ? i - 1 : i).toUtf8().size());
        }
        QCOMPARE(byteOffset(utf8, 100), utf8.size());
        QCOMPARE(byteOffset({}, 3), 0);
    }
};

ZEPHIRA_TEST(TstBufferText)

} // namespace zephira

#include "tst_buffertext.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/lineends.h"
#include "support/testregistry.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstLineEnds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kind_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<LineEnds>("kind");
        QTest::newRow("empty") << QByteArray("") << LineEnds::CrLf;
        QTest::newRow("none") << QByteArray("abc") << LineEnds::CrLf;
        QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << LineEnds::CrLf;
        QTest::newRow("LF") << QByteArray("a\nb\n") << LineEnds::Lf;
        QTest::newRow("CR") << QByteArray("a\rb\r") << LineEnds::Cr;
        QTest::newRow("only CR LF") << QByteArray("\r\n") << LineEnds::CrLf;
        QTest::newRow("only LF") << QByteArray("\n") << LineEnds::Lf;
        QTest::newRow("only CR") << QByteArray("\r") << LineEnds::Cr;
        QTest::newRow("blank lines") << QByteArray("\r\n\r\n\r\n") << LineEnds::CrLf;
        QTest::newRow("CR LF, then LF") << QByteArray("a\r\nb\n") << LineEnds::Mixed;
        QTest::newRow("LF, then CR LF") << QByteArray("a\nb\r\n") << LineEnds::Mixed;
        QTest::newRow("LF CR") << QByteArray("a\n\rb") << LineEnds::Mixed;
        QTest::newRow("CR CR LF") << QByteArray("a\r\r\nb") << LineEnds::Mixed;
        QTest::newRow("CR LF, then a last CR") << QByteArray("a\r\nb\r") << LineEnds::Mixed;
        QTest::newRow("CR, then a last LF") << QByteArray("a\rb\n") << LineEnds::Mixed;
        QTest::newRow("NUL between") << QByteArray("a\r\0\n", 4) << LineEnds::Mixed;
    }

    void kind()
    {
        QFETCH(QByteArray, text);
        QTEST(lineEndsOf(text), "kind");
    }

    void conversion_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("unified");
        QTest::newRow("empty") << QByteArray("") << QByteArray("");
        QTest::newRow("no line end") << QByteArray("abc") << QByteArray("abc");
        QTest::newRow("each kind") << QByteArray("a\nb\r\nc\rd") << QByteArray("a|b|c|d");
        QTest::newRow("runs") << QByteArray("\n\n\r\n\r\n\r\r") << QByteArray("||||||");
        QTest::newRow("CR CR LF are two") << QByteArray("\r\r\n") << QByteArray("||");
        QTest::newRow("LF CR are two") << QByteArray("\n\r") << QByteArray("||");
        QTest::newRow("NUL stays") << QByteArray("a\0\n", 3) << QByteArray("a\0|", 3);
        QTest::newRow("letters stay") << QByteArray("\xC3\xA4\n") << QByteArray("\xC3\xA4|");
    }

    void conversion()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, unified);
        const auto with = [&](const char *lineEnd) { return QByteArray(unified).replace("|", lineEnd); };
        QCOMPARE(toLineEnds(text, LineEnds::CrLf), with("\r\n"));
        QCOMPARE(toLineEnds(text, LineEnds::Lf), with("\n"));
        QCOMPARE(toLineEnds(text, LineEnds::Cr), with("\r"));
        QCOMPARE(toLineEnds(text, LineEnds::Mixed), text);
        QCOMPARE(toCrLf(QString::fromUtf8(text)), QString::fromUtf8(with("\r\n")));
    }

    void noCopyWhereNothingChanges()
    {
        for (const QByteArray &text : {QByteArray("a\r\nb"), QByteArray("abc")})
            QCOMPARE(toLineEnds(text, LineEnds::CrLf).constData(), text.constData());
    }

    void randomTextsComeBack()
    {
        QRandomGenerator random(2);
        for (int round = 0; round < 20'000; ++round) {
            QByteArray text;
            for (qsizetype i = random.bounded(12); i > 0; --i)
                text.append("a\r\n"[random.bounded(3)]);
            for (const LineEnds kind : {LineEnds::CrLf, LineEnds::Lf, LineEnds::Cr}) {
                const QByteArray converted = toLineEnds(text, kind);
                const bool hasLines = text.contains('\r') || text.contains('\n');
                QCOMPARE(lineEndsOf(converted), hasLines ? kind : LineEnds::CrLf);
                QCOMPARE(toLineEnds(converted, LineEnds::Lf), toLineEnds(text, LineEnds::Lf));
                if (lineEndsOf(text) == kind)
                    QCOMPARE(converted, text);
            }
        }
    }
};

ZEPHIRA_TEST(TstLineEnds)

} // namespace zephira

Q_DECLARE_METATYPE(zephira::LineEnds)

#include "tst_lineends.moc"

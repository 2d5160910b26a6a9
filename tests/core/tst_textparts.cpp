// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/textparts.h"
#include "support/testregistry.h"

#include <QByteArray>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTextParts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPairIsOneCharacter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qsizetype>("offset");
        QTest::addColumn<qsizetype>("behind");
        const QString grin = u"a\U0001F600b"_s;
        const auto row = [](const char *name, const QString &text, qsizetype offset, qsizetype behind) {
            QTest::newRow(name) << text << offset << behind;
        };
        row("a letter", grin, 0, 1);
        row("a pair", grin, 1, 3);
        row("the second half of a pair", grin, 2, 3);
        row("the last letter", grin, 3, 4);
        row("a first half at the end", grin.left(2), 1, 2);
        row("two first halves", grin.mid(1, 1).repeated(2), 0, 1);
    }

    void aPairIsOneCharacter()
    {
        QFETCH(QString, text);
        QFETCH(qsizetype, offset);
        QTEST(behindCharacter(text, offset), "behind");
    }

    void linesEnd_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<qsizetype>>("ends");
        QTest::newRow("none") << u"ab"_s << QList<qsizetype>{};
        QTest::newRow("line feeds") << u"a\n\n"_s << QList<qsizetype>{1, 2};
        QTest::newRow("both") << u"a\r\nb\r\n"_s << QList<qsizetype>{2, 5};
        QTest::newRow("carriage returns") << u"a\r\rb\r"_s << QList<qsizetype>{1, 2, 4};
        QTest::newRow("the other way round") << u"a\n\rb"_s << QList<qsizetype>{1, 2};
    }

    void linesEnd()
    {
        QFETCH(QString, text);
        QList<qsizetype> found;
        for (qsizetype at = 0; at < text.size(); ++at) {
            if (endsLine(text, at))
                found.append(at);
        }
        QTEST(found, "ends");
    }

    void charactersAndBytes()
    {
        QString lineEnds;
        QString letters;
        for (char16_t unit = 0; unit < 0x180; ++unit) {
            const QChar character(unit);
            lineEnds += isLineEnd(character) ? QString(character) : QString();
            letters += isAsciiLetter(character) ? QString(character) : QString();
            if (unit < 0x100) {
                const char byte = static_cast<char>(unit);
                QCOMPARE(isLineEnd(byte), isLineEnd(character));
                QCOMPARE(isAsciiLetter(byte), isAsciiLetter(character));
            }
        }
        QCOMPARE(lineEnds, u"\n\r"_s);
        QCOMPARE(letters, u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s);
    }

    void spacesAtBothEndsGo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("rest");
        QTest::newRow("at both ends") << u"  a b "_s << u"a b"_s;
        QTest::newRow("none") << u"a"_s << u"a"_s;
        QTest::newRow("nothing else") << u"   "_s << u""_s;
        QTest::newRow("nothing") << u""_s << u""_s;
        QTest::newRow("other blanks stay") << u" \ta\u00a0 "_s << u"\ta\u00a0"_s;
    }

    void spacesAtBothEndsGo()
    {
        QFETCH(QString, text);
        QFETCH(QString, rest);
        QCOMPARE(withoutSpaces(QStringView(text)).toString(), rest);
        const QByteArray bytes = text.toUtf8();
        QCOMPARE(withoutSpaces(QByteArrayView(bytes)).toByteArray(), rest.toUtf8());
    }
};

ZEPHIRA_TEST(TstTextParts)

#include "tst_textparts.moc"

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

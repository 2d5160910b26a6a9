// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/elementcaption.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstElementCaption final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captions_data()
    {
        QTest::addColumn<QByteArray>("tag");
        QTest::addColumn<QString>("caption");
        const auto row = [](const char *tag, const QString &caption) {
            QTest::newRow(tag) << QByteArray(tag) << caption;
        };
        row("<p>", u"p"_s);
        row("<p id=a>", u"p#a"_s);
        row("<P ID='a b' CLASS=\"c  d\">", u"p#a.c.d"_s);
        row("<p class=c id=a>", u"p#a.c"_s);
        row("<p title=\" id=x\" id=a>", u"p#a"_s);
        row("<p data-id=x>", u"p"_s);
        row("<p id class=\"\">", u"p"_s);
        row("<p id=a id=b>", u"p#a"_s);
        row("<p id = \"\xc3\xa9\">", u"p#\u00e9"_s);
        row("<p id=\"open", u"p"_s);
    }
    void captions()
    {
        QFETCH(QByteArray, tag);
        QFETCH(QString, caption);
        QCOMPARE(elementCaption(tag, "p"), caption);
    }

    void aLongOneIsCutOff()
    {
        const QByteArray tag = "<p class='" + QByteArray("word ").repeated(100'000) + "'>";
        QCOMPARE(elementCaption(tag, "p").size(), 1);
        QCOMPARE(elementCaption("<p class='" + QByteArray("word ").repeated(20) + "'>", "p"),
                 u"p.word.word.word.word.word.word.word.wo\u2026"_s);
    }
};

ZEPHIRA_TEST(TstElementCaption)

#include "tst_elementcaption.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/casetext.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

class TstCaseText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letters()
    {
        QCOMPARE(upperCase("a\xc3\xa9 1 <b>"), QByteArray("A\xc3\x89 1 <B>"));
        QCOMPARE(upperCase("stra\xc3\x9f"
                           "e"),
                 QByteArray("STRASSE"));
        QCOMPARE(lowerCase("A\xc3\x89 1"), QByteArray("a\xc3\xa9 1"));
        QCOMPARE(upperCase({}), QByteArray());
    }

    void words()
    {
        QCOMPARE(capitalised("one TWO-three don't 'quoted' x2y"), QByteArray("One Two-Three Don't 'Quoted' X2y"));
        QCOMPARE(capitalised("\xc3\xa9t\xc3\xa9"), QByteArray("\xc3\x89t\xc3\xa9"));
        QCOMPARE(capitalised("\xf0\x90\x90\xa8\xf0\x90\x90\xa8"), QByteArray("\xf0\x90\x90\x80\xf0\x90\x90\xa8"));
    }

    void whatIsNoTextStays()
    {
        const QByteArray bytes("a\xff z");
        QCOMPARE(upperCase(bytes), bytes);
        QCOMPARE(capitalised(bytes), bytes);
    }
};

ZEPHIRA_TEST(TstCaseText)

#include "tst_casetext.moc"

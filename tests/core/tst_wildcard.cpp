// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/wildcard.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstWildcard final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matching_data()
    {
        QTest::addColumn<QString>("wildcard");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("matches");
        QTest::newRow("itself") << u"a.htm"_s << u"a.htm"_s << true;
        QTest::newRow("another case") << u"a.htm"_s << u"A.htm"_s << false;
        QTest::newRow("the beginning alone") << u"a.htm"_s << u"a.html"_s << false;
        QTest::newRow("any characters") << u"a*"_s << u"a.html"_s << true;
        QTest::newRow("none") << u"a*"_s << u"a"_s << true;
        QTest::newRow("in the middle") << u"*b*"_s << u"abc"_s << true;
        QTest::newRow("at a later place") << u"*abc?"_s << u"abcabcd"_s << true;
        QTest::newRow("stars at the end") << u"a**"_s << u"a"_s << true;
        QTest::newRow("one character") << u"?.txt"_s << u"a.txt"_s << true;
        QTest::newRow("one of two units") << u"?.txt"_s << u"\U0001F600.txt"_s << true;
        QTest::newRow("two characters") << u"?.txt"_s << u"ab.txt"_s << false;
        QTest::newRow("no character") << u"a?"_s << u"a"_s << false;
        QTest::newRow("nothing and nothing") << u""_s << u""_s << true;
        QTest::newRow("nothing and a star") << u"*"_s << u""_s << true;
        QTest::newRow("brackets stand for themselves") << u"[a]"_s << u"a"_s << false;
    }

    void matching()
    {
        QFETCH(QString, wildcard);
        QFETCH(QString, name);
        QTEST(matchesWildcard(wildcard, name), "matches");
    }

    /// Trying every place for every star would take longer than anyone waits.
    void manyStars()
    {
        QElapsedTimer time;
        time.start();
        QVERIFY(!matchesWildcard(u"*a"_s.repeated(30) + u'b', QString(2000, u'a')));
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
    }
};

ZEPHIRA_TEST(TstWildcard)

#include "tst_wildcard.moc"

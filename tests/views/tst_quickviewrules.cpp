// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "views/quickviewrules.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstQuickViewRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictures_data();
    void pictures();
};

void TstQuickViewRules::pictures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("picture");
    QTest::newRow("jpg") << u"a.jpg"_s << true;
    QTest::newRow("capitals") << u"A.GIF"_s << true;
    QTest::newRow("bmp") << u"a.bmp"_s << true;
    QTest::newRow("jpeg is a text") << u"a.jpeg"_s << false;
    QTest::newRow("png is a text") << u"a.png"_s << false;
    QTest::newRow("no dot") << u"myjpg"_s << true;
    QTest::newRow("short") << u"pg"_s << false;
    QTest::newRow("empty") << u""_s << false;
}

void TstQuickViewRules::pictures()
{
    QFETCH(QString, name);
    QTEST(isQuickViewPicture(name), "picture");
}

ZEPHIRA_TEST(TstQuickViewRules)
#include "tst_quickviewrules.moc"

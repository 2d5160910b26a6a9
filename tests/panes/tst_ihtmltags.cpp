// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/ihtmltags.h"
#include "support/testregistry.h"

#include <QTest>

#include <algorithm>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstIhtmlTags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void count() { QCOMPARE(ihtmlTags().size(), std::size_t{186}); }

    void places_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("tag");
        QTest::newRow("first") << 0 << u"<!ihtml>"_s;
        QTest::newRow("pair") << 5 << u"<iauthor></iauthor>"_s;
        QTest::newRow("last") << 185 << u"<iwhile></iwhile>"_s;
    }

    void places()
    {
        QFETCH(int, row);
        QTEST(ihtmlTags()[static_cast<std::size_t>(row)].toString(), "tag");
    }

    void irregularRowsStay_data()
    {
        QTest::addColumn<QString>("tag");
        for (const char *tag :
             {"<<irandom>", "<ireplace><irndnum>", "<iset></isql>", "<isqltrans></islqtrans>", "<imultipartt>"})
            QTest::newRow(tag) << QString::fromLatin1(tag);
    }

    void irregularRowsStay()
    {
        QFETCH(QString, tag);
        QCOMPARE(std::ranges::count(ihtmlTags(), QStringView(tag)), 1);
    }

    void eachRowOnce()
    {
        QStringList tags;
        for (const QStringView tag : ihtmlTags()) {
            QVERIFY2(tag.startsWith(u'<') && tag.endsWith(u'>'), qPrintable(tag.toString()));
            tags.append(tag.toString());
        }
        QCOMPARE(tags.removeDuplicates(), 0);
        QCOMPARE(tags.count(u"<iftp>"_s) + tags.count(u"<iftp></iftp>"_s), 2);
    }
};

ZEPHIRA_TEST(TstIhtmlTags)
#include "tst_ihtmltags.moc"

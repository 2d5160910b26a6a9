// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/insertedtable.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstInsertedTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allParts()
    {
        QCOMPARE(insertedTableMarkup({2, 1, u" border=0 "_s, u"align=left"_s, u"A & B"_s}),
                 u"<table border=0>\n<caption>A &amp; B</caption>\n<tbody>\n"
                 u"<tr>\n<td align=left><br></td>\n</tr>\n<tr>\n<td align=left><br></td>\n</tr>\n"
                 u"</tbody>\n</table>"_s);
    }

    void emptyParts()
    {
        QCOMPARE(insertedTableMarkup({1, 2, u""_s, u" "_s, u""_s}),
                 u"<table>\n<tbody>\n<tr>\n<td><br></td>\n<td><br></td>\n</tr>\n</tbody>\n</table>"_s);
    }

    void defaults()
    {
        const InsertTableParam table;
        QCOMPARE(table.rows, 3);
        QCOMPARE(table.columns, 3);
        QVERIFY(insertedTableMarkup(table).startsWith(
            u"<table border=1 cellPadding=1 cellSpacing=1 width=\"75%\">\n<tbody>\n"));
    }

    void senseless()
    {
        QCOMPARE(insertedTableMarkup({0, 1}), QString());
        QCOMPARE(insertedTableMarkup({1, -1}), QString());
        QCOMPARE(insertedTableMarkup({2000000000, 2000000000}), QString());
        QVERIFY(!insertedTableMarkup({InsertTableParam::mostCells, 1}).isEmpty());
        QCOMPARE(insertedTableMarkup({InsertTableParam::mostCells + 1, 1}), QString());
    }
};

ZEPHIRA_TEST(TstInsertedTable)
#include "tst_insertedtable.moc"

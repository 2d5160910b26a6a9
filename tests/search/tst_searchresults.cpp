// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchresults.h"
#include "support/testregistry.h"

#include <QAbstractItemModelTester>
#include <QPoint>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

FoundFile file(int order, const QString &name, int matches)
{
    FoundFile found{order, u"/p/"_s + name, {}, false, {}};
    for (int i = 0; i < matches; ++i)
        found.matches.push_back({i, 1, i, 2, u"abc"_s, 1, 1, u"x"_s});
    return found;
}

} // namespace

class TstSearchResults final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files()
    {
        SearchResults results;
        const QAbstractItemModelTester tester(&results, QAbstractItemModelTester::FailureReportingMode::QtTest);
        results.begin(u"/p"_s, false);
        std::vector<FoundFile> found;
        found.push_back(file(3, u"c.htm"_s, 1));
        found.push_back(file(1, u"sub/a.htm"_s, 2));
        results.add(std::move(found));
        found.clear();
        found.push_back(file(2, u"b.htm"_s, 1));
        results.add(std::move(found));
        QStringList names;
        for (int i = 0; i < results.rowCount(); ++i)
            names.append(results.index(i, 0).data().toString());
        QCOMPARE(names, (QStringList{u"sub/a.htm (2 matches)"_s, u"b.htm (1 match)"_s, u"c.htm (1 match)"_s}));
        QCOMPARE(results.index(0, 0).data(Qt::ToolTipRole).toString(), u"/p/sub/a.htm"_s);
        const QModelIndex match = results.index(1, 0, results.index(0, 0));
        QCOMPARE(match.data().toString(), u"2: abc"_s);
        QCOMPARE(match.data(SearchResults::EmphasisRole).toPoint(), QPoint(4, 1));
        QCOMPARE(SearchResults::fileOf(match), 0);
        QCOMPARE(SearchResults::matchOf(match), 1);
        QCOMPARE(SearchResults::fileOf(results.index(2, 0)), 2);
        QCOMPARE(SearchResults::matchOf(results.index(2, 0)), -1);
        QVERIFY(!match.data(Qt::CheckStateRole).isValid());
        QVERIFY(!results.setData(match, Qt::Unchecked, Qt::CheckStateRole));
        results.setNote(1, u"read-only"_s);
        QCOMPARE(results.index(1, 0).data().toString(), u"b.htm (1 match) \u2013 read-only"_s);
    }

    void checkBoxes()
    {
        SearchResults results;
        const QAbstractItemModelTester tester(&results, QAbstractItemModelTester::FailureReportingMode::QtTest);
        results.begin(u"/p"_s, true);
        std::vector<FoundFile> found;
        found.push_back(file(1, u"a.htm"_s, 2));
        found.push_back(file(2, u"b.htm"_s, 1));
        results.add(std::move(found));
        const QModelIndex first = results.index(0, 0);
        const QModelIndex match = results.index(1, 0, first);
        QCOMPARE(results.index(1, 1, first).data().toString(), u"axc"_s);
        QCOMPARE(results.chosenCount(), 3);
        QCOMPARE(first.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
        QSignalSpy changed(&results, &SearchResults::chosenChanged);
        QVERIFY(results.setData(match, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(first.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::PartiallyChecked));
        QCOMPARE(results.chosen(0), (std::vector<bool>{true, false}));
        QVERIFY(results.setData(first, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(results.chosenCount(), 1);
        QVERIFY(results.setData(first, Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(results.chosenCount(), 3);
        results.endReplacing();
        QCOMPARE(results.chosenCount(), 0);
        QVERIFY(!first.data(Qt::CheckStateRole).isValid());
    }
};

ZEPHIRA_TEST(TstSearchResults)

} // namespace zephira

#include "tst_searchresults.moc"

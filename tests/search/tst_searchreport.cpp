// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchreport.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstSearchReport final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void progress()
    {
        QCOMPARE(searchProgress({.files = 1, .filesWithMatches = 1, .matches = 2}),
                 u"Searching: 2 matches in 1 file, 1 file searched\u2026"_s);
    }

    void summary_data()
    {
        QTest::addColumn<SearchCounts>("counts");
        QTest::addColumn<QString>("sentence");
        const QString nothing = u"0 matches in 0 files, 0 files searched."_s;
        // clang-format off: a row a line
        QTest::newRow("nothing") << SearchCounts() << nothing;
        QTest::newRow("numbers") << SearchCounts{.files = 12345, .filesWithMatches = 2, .matches = 1}
                                 << u"1 match in 2 files, 12,345 files searched."_s;
        QTest::newRow("stopped") << SearchCounts{.isStopped = true} << u"Stopped. "_s + nothing;
        QTest::newRow("cut") << SearchCounts{.isCut = true} << nothing + u" There are more: the search ended here."_s;
        QTest::newRow("given up") << SearchCounts{.givenUp = 2}
                                  << nothing + u" The expression needs too many steps in 2 files."_s;
        QTest::newRow("left out") << SearchCounts{.binaryFiles = 1,
                                                  .unreadableFiles = 2,
                                                  .tooLargeFiles = 3,
                                                  .unreadableFolders = 1,
                                                  .otherFileSystems = 2,
                                                  .invalidNames = 1}
                                  << nothing
                + u" Left out: 1 file without text, 3 files larger than 256 MiB, 2 files that can't be read, 1 folder that can't be read, 2 folders of other file systems, 1 name that isn't valid text."_s;
        // clang-format on
    }

    void summary()
    {
        QFETCH(SearchCounts, counts);
        QTEST(searchSummary(counts), "sentence");
    }
};

ZEPHIRA_TEST(TstSearchReport)

} // namespace zephira

#include "tst_searchreport.moc"

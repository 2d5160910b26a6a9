// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "web/designer/mergeladder.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

QString asItIs(QStringView markup)
{
    return markup.toString();
}

const QString page = u"<div><p>a b</p><p>c d</p></div>"_s;
const QString edited = u"<div><p>a X</p><p>Y d</p></div>"_s;

} // namespace

/// A check that knows which try is right stands in for the engine.
class TstMergeLadder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingChanged()
    {
        PageAlignment alignment(page, page);
        const PageMerge merge(alignment, page, asItIs);
        const auto never = [](const MergeTry &) {
            qFatal("nothing needs a check");
            return MergeVerdict::Wrong;
        };
        QCOMPARE(mergedByLadder(merge, never), std::optional(TextChanges()));
    }

    void firstTry()
    {
        PageAlignment alignment(page, page);
        const PageMerge merge(alignment, edited, asItIs);
        int tries = 0;
        const auto changes = mergedByLadder(merge, [&](const MergeTry &) {
            ++tries;
            return MergeVerdict::Right;
        });
        QCOMPARE(tries, 1);
        QCOMPARE(changes, std::optional(TextChanges({{10, 11, u"X"_s}, {18, 19, u"Y"_s}})));
    }

    /// Each try says more than the one before it, none comes twice, and all lead to what they are for.
    void allTries()
    {
        PageAlignment alignment(page, page);
        const PageMerge merge(alignment, edited, asItIs);
        std::vector<MergeTry> tries;
        const auto changes = mergedByLadder(merge, [&](const MergeTry &each) {
            tries.push_back(each);
            return MergeVerdict::Wrong;
        });
        QCOMPARE(changes, std::nullopt);
        QStringList list;
        for (const MergeTry &each : tries) {
            const QString result = withChanges(page, each.changes);
            QCOMPARE(result, each.target ? withChanges(page, {*each.target}) : edited);
            QStringList ranges;
            for (const TextChange &change : each.changes)
                ranges.append(u"%1-%2"_s.arg(change.begin).arg(change.end));
            list.append(ranges.join(u' ') + (each.target ? u" alone"_s : QString()));
        }
        QCOMPARE(list,
                 QStringList({u"10-11 18-19"_s, u"10-11 alone"_s, u"5-15 alone"_s, u"0-31 alone"_s, u"10-19"_s,
                              u"8-21"_s, u"0-31"_s, u"5-25"_s}));
    }

    /// A hunk that is only right with the element around it doesn't make the other one larger.
    void eachAlone()
    {
        PageAlignment alignment(page, page);
        const PageMerge merge(alignment, edited, asItIs);
        const auto changes = mergedByLadder(merge, [](const MergeTry &each) {
            const bool isFirst = each.changes.front().begin <= 10;
            const bool isWide = each.changes.front().end - each.changes.front().begin > 1;
            return isFirst && !isWide ? MergeVerdict::Wrong : MergeVerdict::Right;
        });
        QCOMPARE(changes, std::optional(TextChanges({{5, 15, u"<p>a X</p>"_s}, {18, 19, u"Y"_s}})));
    }

    void stopped()
    {
        PageAlignment alignment(page, page);
        const PageMerge merge(alignment, edited, asItIs);
        for (int most = 0; most < 8; ++most) {
            int tries = 0;
            const auto changes = mergedByLadder(
                merge, [&](const MergeTry &) { return ++tries > most ? MergeVerdict::Stop : MergeVerdict::Wrong; });
            QCOMPARE(changes, std::nullopt);
            QCOMPARE(tries, most + 1);
        }
    }
};

ZEPHIRA_TEST(TstMergeLadder)
#include "tst_mergeladder.moc"

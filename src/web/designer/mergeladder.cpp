// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/mergeladder.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr size_t mostHunksAlone = 12;
constexpr int mostElementsAlone = 3;
constexpr int mostTokensAsOne = 400;
constexpr int mostElements = 12;
constexpr int widths[] = {2, 8, 32, 128};

class Ladder
{
public:
    Ladder(const PageMerge &merge, const MergeCheck &check) : m_merge(merge), m_check(check) {}

    std::optional<TextChanges> climb()
    {
        using Step = bool (Ladder::*)();
        constexpr Step steps[] = {&Ladder::tryPartners, &Ladder::tryImplied, &Ladder::tryEachAlone,
                                  &Ladder::tryAsOne,    &Ladder::tryWider,   &Ladder::tryElements};
        for (const Step step : steps) {
            if ((this->*step)())
                return m_right;
            if (m_isStopped)
                return {};
        }
        return {};
    }

private:
    /// How a hunk alone was right.
    struct Found {
        MergeHunk hunk;
        MergeReach reach = MergeReach::Between;
    };

    /// Whether these changes make the edited page. What was tried before isn't tried again.
    bool isRight(const std::optional<TextChanges> &changes)
    {
        if (!changes || m_isStopped || std::ranges::find(m_tried, *changes) != m_tried.end())
            return false;
        m_tried.push_back(*changes);
        const MergeVerdict verdict = m_check({*changes, {}});
        m_isStopped = verdict == MergeVerdict::Stop;
        if (verdict == MergeVerdict::Right)
            m_right = changes;
        return verdict == MergeVerdict::Right;
    }

    bool isRightAlone(const TextChanges &changes, const TextChange &target)
    {
        if (m_isStopped)
            return false;
        const MergeVerdict verdict = m_check({changes, target});
        m_isStopped = verdict == MergeVerdict::Stop;
        return verdict == MergeVerdict::Right;
    }

    bool tryPartners()
    {
        return isRight(m_merge.changes(m_merge.hunks(), MergeReach::BehindPartner))
            || isRight(m_merge.changes(m_merge.hunks(), MergeReach::BeforePartner));
    }

    bool tryImplied() { return isRight(m_merge.changes(m_merge.hunks(), MergeReach::Between)); }

    std::optional<Found> findAlone(const MergeHunk &hunk)
    {
        const TextChange target = m_merge.changeOfLoaded(hunk);
        std::optional<TextChanges> last;
        for (const MergeReach reach : {MergeReach::BehindPartner, MergeReach::BeforePartner, MergeReach::Between}) {
            const std::optional<TextChanges> changes = m_merge.changes({hunk}, reach);
            if (changes && changes != last && isRightAlone(*changes, target))
                return Found{hunk, reach};
            last = changes;
        }
        std::optional<MergeHunk> grown = hunk;
        for (int element = 0; element < mostElementsAlone && !m_isStopped; ++element) {
            grown = m_merge.enclosing(*grown);
            if (!grown)
                break;
            if (isRightAlone({m_merge.changeWithin(*grown, hunk)}, target))
                return Found{*grown, MergeReach::Between};
        }
        return {};
    }

    bool tryEachAlone()
    {
        const MergeHunks &hunks = m_merge.hunks();
        if (hunks.size() < 2 || hunks.size() > mostHunksAlone)
            return false;
        std::vector<Found> found;
        for (const MergeHunk &hunk : hunks) {
            const std::optional<Found> alone = findAlone(hunk);
            if (!alone)
                return false;
            found.push_back(*alone);
        }
        MergeHunks wide;
        for (const Found &each : found) {
            if (each.reach == MergeReach::Between)
                wide.push_back(each.hunk);
        }
        wide = joined(std::move(wide));
        TextChanges changes;
        for (const MergeHunk &hunk : wide)
            std::ranges::move(m_merge.changesOf(hunk, MergeReach::Between), std::back_inserter(changes));
        for (const Found &each : found) {
            const bool isCovered = std::ranges::any_of(wide, [&](const MergeHunk &hunk) {
                return each.hunk.begin >= hunk.begin && each.hunk.end <= hunk.end;
            });
            if (each.reach != MergeReach::Between && !isCovered)
                std::ranges::move(m_merge.changesOf(each.hunk, each.reach), std::back_inserter(changes));
        }
        return isRight(inOrder(std::move(changes)));
    }

    bool tryAsOne()
    {
        const MergeHunks &hunks = m_merge.hunks();
        if (hunks.size() < 2 || hunks.back().end - hunks.front().begin >= mostTokensAsOne)
            return false;
        const MergeHunk all{hunks.front().begin, hunks.back().end, hunks.front().editedBegin, hunks.back().editedEnd};
        return isRight(m_merge.changes({all}, MergeReach::Between));
    }

    bool tryWider()
    {
        return std::ranges::any_of(widths, [this](int width) {
            MergeHunks wide;
            for (const MergeHunk &hunk : m_merge.hunks())
                wide.push_back(m_merge.widened(hunk, width));
            return isRight(m_merge.changes(joined(std::move(wide)), MergeReach::Between));
        });
    }

    bool tryElements()
    {
        MergeHunks hunks = m_merge.hunks();
        for (int element = 0; element < mostElements && !m_isStopped; ++element) {
            for (MergeHunk &hunk : hunks) {
                const std::optional<MergeHunk> grown = m_merge.enclosing(hunk);
                if (!grown)
                    return false;
                hunk = *grown;
            }
            hunks = joined(std::move(hunks));
            if (isRight(m_merge.changes(hunks, MergeReach::Between)))
                return true;
        }
        return false;
    }

    const PageMerge &m_merge;
    const MergeCheck &m_check;
    std::vector<TextChanges> m_tried;
    std::optional<TextChanges> m_right;
    bool m_isStopped = false;
};

} // namespace

std::optional<TextChanges> mergedByLadder(const PageMerge &merge, const MergeCheck &check)
{
    if (merge.hunks().empty())
        return TextChanges();
    return Ladder(merge, check).climb();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/tokenmatch.h"

#include <algorithm>
#include <utility>

namespace zephira {

namespace {

/// Parts of both lists, ends exclusive.
struct Gap {
    int firstBegin = 0;
    int firstEnd = 0;
    int secondBegin = 0;
    int secondEnd = 0;

    bool isOneSided() const { return firstBegin >= firstEnd || secondBegin >= secondEnd; }
};

class Matcher
{
public:
    Matcher(std::span<const int> first, std::span<const int> second, int count)
        : m_first(first)
        , m_second(second)
        , m_partners(second.size(), -1)
        , m_inFirst(static_cast<size_t>(count))
        , m_inSecond(static_cast<size_t>(count))
        , m_work(workPerEntry * static_cast<long>(first.size() + second.size()) + workAtLeast)
    {}

    std::vector<int> match()
    {
        m_gaps.push_back({0, static_cast<int>(m_first.size()), 0, static_cast<int>(m_second.size())});
        while (!m_gaps.empty() && m_work > 0) {
            Gap gap = m_gaps.back();
            m_gaps.pop_back();
            takeEnds(gap);
            if (gap.isOneSided() || divideAtAnchors(gap))
                continue;
            if (!takeShortestWay(gap))
                walk(gap);
        }
        return std::move(m_partners);
    }

private:
    /// The limits of the work, in steps of a few nanoseconds.
    static constexpr long workPerEntry = 60;
    static constexpr long workAtLeast = 8'000'000;
    /// The most differences for which the shortest way is looked for.
    static constexpr int mostDifferences = 1500;
    /// How far ahead the lists are compared to find where they agree again, and in how many entries they have to.
    static constexpr int farthest = 64;
    static constexpr int agreement = 3;

    /// Where a number is in a gap.
    struct Occurrence {
        int gap = 0;
        int count = 0;
        int place = 0;
    };

    struct Anchor {
        int first = 0;
        int second = 0;
        /// The index of the anchor before this one in the longest chain that ends here, or -1.
        int before = -1;
    };

    bool agree(int first, int second) const
    {
        return m_first[static_cast<size_t>(first)] == m_second[static_cast<size_t>(second)];
    }
    void pair(int first, int second) { m_partners[static_cast<size_t>(second)] = first; }

    void takeEnds(Gap &gap)
    {
        while (!gap.isOneSided() && agree(gap.firstBegin, gap.secondBegin))
            pair(gap.firstBegin++, gap.secondBegin++);
        while (!gap.isOneSided() && agree(gap.firstEnd - 1, gap.secondEnd - 1))
            pair(--gap.firstEnd, --gap.secondEnd);
    }

    void countIn(std::span<const int> list, int begin, int end, std::vector<Occurrence> &occurrences) const
    {
        for (int place = begin; place < end; ++place) {
            Occurrence &each = occurrences[static_cast<size_t>(list[static_cast<size_t>(place)])];
            each = {m_gap, each.gap == m_gap ? each.count + 1 : 1, place};
        }
    }

    bool isUnique(const Occurrence &each) const { return each.gap == m_gap && each.count == 1; }

    /// Pairs numbers that are unique on both sides of the gap, and leaves the gaps between them. Returns false if there
    /// are none.
    bool divideAtAnchors(const Gap &gap)
    {
        ++m_gap;
        m_work -= (gap.firstEnd - gap.firstBegin) + (gap.secondEnd - gap.secondBegin);
        countIn(m_first, gap.firstBegin, gap.firstEnd, m_inFirst);
        countIn(m_second, gap.secondBegin, gap.secondEnd, m_inSecond);
        std::vector<Anchor> anchors;
        for (int place = gap.firstBegin; place < gap.firstEnd; ++place) {
            const auto number = static_cast<size_t>(m_first[static_cast<size_t>(place)]);
            if (isUnique(m_inFirst[number]) && isUnique(m_inSecond[number]))
                anchors.push_back({place, m_inSecond[number].place});
        }
        if (anchors.empty())
            return false;
        Gap rest = gap;
        for (const Anchor &anchor : longestChain(anchors)) {
            m_gaps.push_back({rest.firstBegin, anchor.first, rest.secondBegin, anchor.second});
            pair(anchor.first, anchor.second);
            rest.firstBegin = anchor.first + 1;
            rest.secondBegin = anchor.second + 1;
        }
        m_gaps.push_back(rest);
        return true;
    }

    /// The longest run of anchors that ascend on both sides, given in the order of the first.
    static std::vector<Anchor> longestChain(std::vector<Anchor> &anchors)
    {
        // For each length of a chain the anchor that ends such a chain earliest.
        std::vector<int> ends;
        for (size_t index = 0; index < anchors.size(); ++index) {
            const auto end = std::ranges::lower_bound(
                ends, anchors[index].second, {}, [&](int each) { return anchors[static_cast<size_t>(each)].second; });
            anchors[index].before = end == ends.begin() ? -1 : *(end - 1);
            if (end == ends.end())
                ends.push_back(static_cast<int>(index));
            else
                *end = static_cast<int>(index);
        }
        std::vector<Anchor> chain;
        for (int index = ends.back(); index >= 0; index = anchors[static_cast<size_t>(index)].before)
            chain.push_back(anchors[static_cast<size_t>(index)]);
        std::ranges::reverse(chain);
        return chain;
    }

    /// How far the ways with some number of differences reach into the first list, by diagonal: the place in the first
    /// list less the one in the second.
    class Reach
    {
    public:
        explicit Reach(int differences) : m_differences(differences), m_places(static_cast<size_t>(2 * differences + 1))
        {}
        int &operator[](int diagonal) { return m_places[static_cast<size_t>(diagonal + m_differences)]; }
        int at(int diagonal) const
        {
            const bool isInside = diagonal >= -m_differences && diagonal <= m_differences;
            return isInside ? m_places[static_cast<size_t>(diagonal + m_differences)] : -1;
        }
        /// Whether the farthest way to the diagonal with one difference more leaves out an entry of the second list.
        bool comesFromAbove(int diagonal, int differences) const
        {
            return diagonal == -differences || (diagonal != differences && at(diagonal - 1) < at(diagonal + 1));
        }

    private:
        int m_differences;
        std::vector<int> m_places;
    };

    /// Pairs what the shortest way through the gap has in common. Returns false if that has too many differences.
    bool takeShortestWay(const Gap &gap)
    {
        const int width = gap.firstEnd - gap.firstBegin;
        const int height = gap.secondEnd - gap.secondBegin;
        const int most = std::min(width + height, mostDifferences);
        std::vector<Reach> reaches;
        for (int differences = 0; differences <= most && m_work > 0; ++differences) {
            Reach reach(differences);
            for (int diagonal = -differences; diagonal <= differences; diagonal += 2) {
                int place = 0;
                if (differences > 0) {
                    const Reach &before = reaches.back();
                    place = before.comesFromAbove(diagonal, differences) ? before.at(diagonal + 1)
                                                                         : before.at(diagonal - 1) + 1;
                }
                const int start = place;
                while (place < width && place - diagonal < height
                       && agree(gap.firstBegin + place, gap.secondBegin + place - diagonal))
                    ++place;
                m_work -= 1 + place - start;
                reach[diagonal] = place;
                if (place >= width && place - diagonal >= height) {
                    goBack(gap, reaches);
                    return true;
                }
            }
            reaches.push_back(std::move(reach));
        }
        return false;
    }

    /// Pairs what the way has in common, from its end to its begin.
    void goBack(const Gap &gap, const std::vector<Reach> &reaches)
    {
        int place = gap.firstEnd - gap.firstBegin;
        int other = gap.secondEnd - gap.secondBegin;
        for (int differences = static_cast<int>(reaches.size()); differences >= 0; --differences) {
            int from = 0;
            int fromOther = 0;
            if (differences > 0) {
                const Reach &before = reaches[static_cast<size_t>(differences - 1)];
                const int diagonal = place - other;
                const bool isAbove = before.comesFromAbove(diagonal, differences);
                from = isAbove ? before.at(diagonal + 1) : before.at(diagonal - 1) + 1;
                fromOther = from - diagonal;
            }
            while (place > from && other > fromOther)
                pair(gap.firstBegin + --place, gap.secondBegin + --other);
            if (differences == 0)
                break;
            const bool isAbove =
                reaches[static_cast<size_t>(differences - 1)].comesFromAbove(place - other, differences);
            if (isAbove)
                --other;
            else
                --place;
        }
    }

    bool agreeFor(const Gap &gap, int first, int second) const
    {
        for (int step = 0; step < agreement; ++step) {
            if (first + step >= gap.firstEnd || second + step >= gap.secondEnd)
                return step > 0;
            if (!agree(first + step, second + step))
                return false;
        }
        return true;
    }

    /// Moves the begin of the gap to the nearest place where the lists agree again. Returns false if there is none near.
    bool resynchronise(Gap &gap)
    {
        for (int distance = 1; distance <= farthest; ++distance) {
            for (int ahead = 0; ahead <= distance; ++ahead) {
                --m_work;
                const int first = gap.firstBegin + ahead;
                const int second = gap.secondBegin + distance - ahead;
                if (first < gap.firstEnd && second < gap.secondEnd && agreeFor(gap, first, second)) {
                    gap.firstBegin = first;
                    gap.secondBegin = second;
                    return true;
                }
            }
        }
        return false;
    }

    void walk(Gap gap)
    {
        while (!gap.isOneSided() && m_work > 0) {
            if (agree(gap.firstBegin, gap.secondBegin)) {
                pair(gap.firstBegin++, gap.secondBegin++);
            } else if (!resynchronise(gap)) {
                ++gap.firstBegin;
                ++gap.secondBegin;
            }
        }
    }

    const std::span<const int> m_first;
    const std::span<const int> m_second;
    std::vector<int> m_partners;
    std::vector<Occurrence> m_inFirst;
    std::vector<Occurrence> m_inSecond;
    std::vector<Gap> m_gaps;
    /// Counts the gaps, from 1.
    int m_gap = 0;
    long m_work;
};

} // namespace

std::vector<int> partnersIn(std::span<const int> first, std::span<const int> second, int count)
{
    return Matcher(first, second, count).match();
}

} // namespace zephira

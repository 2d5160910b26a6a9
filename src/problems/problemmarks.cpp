// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/problemmarks.h"

#include "editor/indicators.h"
#include "editor/sciengine.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

constexpr std::array<int, 2> indicators{ErrorIndicator, WarningIndicator};

// Blue, green, red; to be seen on light and on dark ground.
constexpr int errorColour = 0x3535e5;
constexpr int warningColour = 0x1090d8;

} // namespace

ProblemMarks::ProblemMarks(const SciEngine &engine) : m_engine(engine) {}

/// Not before there are problems, because the engine paints all of the text again.
void ProblemMarks::setUp()
{
    if (std::exchange(m_isSetUp, true))
        return;
    for (const int indicator : indicators) {
        m_engine.send(Sci::SCI_INDICSETSTYLE, indicator, Sci::INDIC_SQUIGGLE);
        m_engine.send(Sci::SCI_INDICSETFORE, indicator, indicator == ErrorIndicator ? errorColour : warningColour);
    }
}

void ProblemMarks::clear()
{
    if (m_places.empty())
        return;
    m_places.clear();
    for (const int indicator : indicators) {
        m_engine.send(Sci::SCI_SETINDICATORCURRENT, indicator);
        m_engine.send(Sci::SCI_INDICATORCLEARRANGE, 0, m_engine.length());
    }
}

void ProblemMarks::set(const std::vector<Problem> &problems)
{
    clear();
    const qsizetype length = m_engine.length();
    if (!problems.empty())
        setUp();
    for (std::size_t i = 0; i < problems.size() && length > 0; ++i) {
        const Problem &problem = problems[i];
        const int indicator = problem.severity == Problem::Severity::Error ? ErrorIndicator : WarningIndicator;
        const qsizetype start = std::clamp<qsizetype>(problem.start, 0, length - 1);
        const qsizetype end = std::clamp(problem.end, start + 1, length);
        const auto same = std::ranges::find_if(
            m_places, [&](const Place &place) { return place.start == start && place.indicator == indicator; });
        if (same != m_places.end()) {
            same->problems.push_back(i);
            continue;
        }
        m_places.push_back({start, end, indicator, {i}});
        m_engine.send(Sci::SCI_SETINDICATORCURRENT, indicator);
        m_engine.send(Sci::SCI_SETINDICATORVALUE, static_cast<qsizetype>(m_places.size()));
        m_engine.send(Sci::SCI_INDICATORFILLRANGE, start, end - start);
    }
}

std::vector<std::size_t> ProblemMarks::at(qsizetype position) const
{
    std::vector<std::size_t> found;
    for (const int indicator : indicators) {
        const auto value = static_cast<std::size_t>(m_engine.send(Sci::SCI_INDICATORVALUEAT, indicator, position));
        if (value > 0 && value <= m_places.size())
            found.insert(found.end(), m_places[value - 1].problems.begin(), m_places[value - 1].problems.end());
    }
    std::ranges::sort(found);
    return found;
}

/// All marks in their order.
std::vector<ProblemMarks::Mark> ProblemMarks::marks() const
{
    std::vector<Mark> all;
    const qsizetype length = m_engine.length();
    for (const int indicator : indicators) {
        for (qsizetype at = 0; at < length && !m_places.empty();) {
            if (const qsizetype value = m_engine.send(Sci::SCI_INDICATORVALUEAT, indicator, at))
                all.push_back({at, value});
            const qsizetype end = m_engine.send(Sci::SCI_INDICATOREND, indicator, at);
            at = end > at ? end : length;
        }
    }
    std::ranges::stable_sort(all, {}, &Mark::start);
    return all;
}

std::optional<qsizetype> ProblemMarks::placeOf(std::size_t problem) const
{
    const auto place = std::ranges::find_if(
        m_places, [&](const Place &each) { return std::ranges::find(each.problems, problem) != each.problems.end(); });
    const qsizetype value = place == m_places.end() ? -1 : place - m_places.begin() + 1;
    const std::vector<Mark> all = marks();
    const auto mark = std::ranges::find_if(all, [&](const Mark &each) { return each.value == value; });
    return mark == all.end() ? std::nullopt : std::optional(mark->start);
}

std::optional<qsizetype> ProblemMarks::next(qsizetype position) const
{
    const std::vector<Mark> all = marks();
    if (all.empty())
        return {};
    const auto behind = std::ranges::upper_bound(all, position, {}, &Mark::start);
    return behind == all.end() ? all.front().start : behind->start;
}

std::optional<qsizetype> ProblemMarks::previous(qsizetype position) const
{
    const std::vector<Mark> all = marks();
    if (all.empty())
        return {};
    const auto first = std::ranges::lower_bound(all, position, {}, &Mark::start);
    return first == all.begin() ? all.back().start : (first - 1)->start;
}

} // namespace zephira

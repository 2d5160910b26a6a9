// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/problem.h"

#include <optional>
#include <vector>

namespace zephira {

class SciEngine;

/// Marks problems in the text of a control. The marks move with the text while one types. Positions are bytes.
class ProblemMarks
{
public:
    /// The engine must outlive the marks.
    explicit ProblemMarks(const SciEngine &engine);

    /// Marks these in place of what was marked before.
    void set(const std::vector<Problem> &problems);
    void clear();

    /// The problems at a position, as indices of what was set.
    std::vector<std::size_t> at(qsizetype position) const;
    /// Where a problem is now; nothing if its place was deleted.
    std::optional<qsizetype> placeOf(std::size_t problem) const;
    /// The next marked place behind a position, or the last one before it; from one end of the text it goes on at the
    /// other. Nothing if there is no mark.
    std::optional<qsizetype> next(qsizetype position) const;
    std::optional<qsizetype> previous(qsizetype position) const;

private:
    /// Problems with the same mark.
    struct Place {
        qsizetype start = 0;
        qsizetype end = 0;
        int indicator = 0;
        std::vector<std::size_t> problems;
    };
    struct Mark {
        qsizetype start = 0;
        /// The number of the place, from 1 on.
        qsizetype value = 0;
    };

    void setUp();
    std::vector<Mark> marks() const;

    const SciEngine &m_engine;
    bool m_isSetUp = false;
    std::vector<Place> m_places;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace zephira {

/// What is wrong at a place of a text. Places are bytes of UTF-8, 0-based; `end` is exclusive.
struct Problem {
    enum class Severity {
        Error,  ///< a browser doesn't do what is written
        Warning ///< something is missing or not known
    };

    qsizetype start = 0;
    qsizetype end = 0;
    Severity severity = Severity::Error;
    /// A sentence.
    QString text = {};

    friend bool operator==(const Problem &, const Problem &) = default;
};

/// Collects problems up to a number that nobody reads through.
class ProblemSink
{
public:
    void error(qsizetype start, qsizetype end, const QString &text)
    {
        add({start, end, Problem::Severity::Error, text});
    }
    void warning(qsizetype start, qsizetype end, const QString &text)
    {
        add({start, end, Problem::Severity::Warning, text});
    }

    bool isFull() const { return m_isFull; }
    std::vector<Problem> taken() { return std::move(m_problems); }

    static constexpr std::size_t most = 20'000;

private:
    void add(Problem problem)
    {
        m_isFull = m_isFull || m_problems.size() >= most;
        if (!m_isFull)
            m_problems.push_back(std::move(problem));
    }

    std::vector<Problem> m_problems;
    bool m_isFull = false;
};

} // namespace zephira

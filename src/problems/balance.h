// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/markupreader.h"
#include "problems/problem.h"

#include <vector>

namespace zephira {

/// Finds elements that aren't closed and end tags that close nothing, as far as the tags themselves prove it. Where a
/// server puts something into the page, nothing is known of what was open before.
class Balance
{
public:
    explicit Balance(ProblemSink &sink) : m_sink(sink) {}

    /// To be called with the tags in their order.
    void take(const MarkupTag &tag);
    /// Server code lies here.
    void interrupt();
    /// The end of the text.
    void finish();

private:
    struct Open {
        qsizetype start = 0;
        qsizetype end = 0;
        QByteArray key;
    };

    void tellUnclosed(const Open &open, const QString &before);

    ProblemSink &m_sink;
    std::vector<Open> m_open;
    bool m_isWhole = true;
};

} // namespace zephira

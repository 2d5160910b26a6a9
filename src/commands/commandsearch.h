// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandlist.h"
#include "core/fuzzymatch.h"

#include <span>
#include <vector>

namespace zephira {

/// Finds commands by what was typed of their captions, of what else they are called, of their places and tips.
class CommandSearch
{
public:
    struct Found {
        /// Number of the command, from 0.
        int command = 0;
        int score = 0;
        /// Where the caption matched.
        QList<qsizetype> places;

        friend bool operator==(const Found &, const Found &) = default;
    };

    CommandSearch() = default;
    explicit CommandSearch(std::span<const ListedCommand> commands);

    /// The commands that have each word that was typed, the best match first. A word may be scattered over the caption; in
    /// place and tip it must begin a word. What was used often, as `uses` counts by command, comes earlier among about
    /// equally good matches, and first of all while nothing has been typed.
    std::vector<Found> find(const QString &typed, std::span<const int> uses) const;

private:
    struct Entry {
        FuzzyText caption;
        std::vector<FuzzyText> others;
        /// Place and tip, folded, with a blank before each word.
        QString rest;
    };

    std::vector<Entry> m_entries;
};

} // namespace zephira

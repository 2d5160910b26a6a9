// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/patternsearch.h"

#include <QString>

#include <functional>
#include <vector>

namespace zephira {

/// A match in a text, with its place and what is shown of it. Lines and columns are 0-based; columns count UTF-16 code
/// units.
struct FoundMatch {
    int line = 0;
    int column = 0;
    int endLine = 0;
    int endColumn = 0;
    /// The line in which it begins, cut around the match if it is long, without blanks at its ends.
    QString text = {};
    /// The place of the match in `text`. A match over several lines ends where the first one does.
    int start = 0;
    int length = 0;
    /// What replaces it, with line feeds as line ends.
    QString replacement = {};

    friend bool operator==(const FoundMatch &, const FoundMatch &) = default;
};

struct FoundMatches {
    std::vector<FoundMatch> matches;
    /// There are more of them.
    bool isCut = false;
    /// The expression needed too many steps; what was found before is listed.
    bool gaveUp = false;
};

/// Finds the matches in a text whose lines end in line feeds.
/// @param atMost    how many
/// @param goesOn    asked at each match
FoundMatches findMatches(const PatternSearch &search, const QString &text, const QString &replacement, qsizetype atMost,
                         const std::function<bool()> &goesOn);

/// A text with each line end, CR LF or CR, made a line feed.
QString withLineFeeds(const QString &text);

/// What is shown of the line after the replacement, and where the replacement stands in it.
struct ReplacedLine {
    QString text;
    int start = 0;
    int length = 0;
};
ReplacedLine replacedLine(const FoundMatch &match);

} // namespace zephira

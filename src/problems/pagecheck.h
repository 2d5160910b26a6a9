// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/knownnames.h"
#include "problems/pagelinks.h"
#include "problems/problem.h"
#include "problems/servercode.h"
#include "tools/tidyengine.h"

namespace zephira {

/// What a check of a page has found out about it.
struct PageFacts {
    /// Server code lies between its tags, so that nothing is known of how its elements are nested.
    bool isMadeByServer = false;
    /// A tag isn't complete, so that what follows may be read otherwise by others.
    bool isBroken = false;
    /// Elements without an end tag, and end tags without an element, as far as the tags prove it.
    std::vector<Problem> unbalanced = {};
    /// The page for a structure check: what isn't markup of its own is blank, each byte stands where it stood, and each
    /// line ends with a line feed.
    QByteArray structure = {};
    /// The tags that are told as unknown, and those with server code in them, by their places.
    std::vector<qsizetype> leftOut = {};
};

/// Finds what is wrong in a page apart from the nesting of its elements: unknown tags and attributes, ids that stand twice,
/// missing alternative texts, labels, languages and titles, links and anchors that lead nowhere, and what is wrong in its
/// styles. Ends early when nobody waits for the result any more.
PageFacts checkPage(const CoveredText &page, const KnownNames &names, const LinkPlaces &places, ProblemSink &sink,
                    const TidyWatch &watch);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <optional>

namespace zephira {

/// Two matching ranges of text, in byte positions: brackets, or the names of a start tag and its end tag.
struct BracePair {
    qsizetype firstStart = 0;
    qsizetype firstEnd = 0;
    qsizetype secondStart = 0;
    qsizetype secondEnd = 0;

    friend bool operator==(const BracePair &, const BracePair &) = default;
};

/// Finds the match of a bracket or tag name at a position of the text, and highlights both. Brackets match only if they
/// have the same style, so that one in a comment or string doesn't end a block. The search distance is limited, so that
/// typing is just as fast in a large text.
class BraceMatcher
{
public:
    explicit BraceMatcher(SciEngine engine);

    /// The pair at the position, with `first` being the part at it; nothing if there is no bracket or tag name there,
    /// or no match near enough.
    std::optional<BracePair> pairAt(qsizetype position) const;
    /// Highlights the pair at the caret, and removes the previous highlight.
    void update();
    void clear();

private:
    std::optional<BracePair> bracketPair(qsizetype position) const;
    std::optional<BracePair> tagPair(qsizetype position) const;
    void mark(qsizetype start, qsizetype end, bool on) const;

    SciEngine m_engine;
    std::optional<BracePair> m_shown;
};

} // namespace zephira

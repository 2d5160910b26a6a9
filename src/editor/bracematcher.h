// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <optional>

namespace zephira {

/// Two stretches of text that belong together, in byte positions: brackets, or the names of a start tag and its end tag.
struct BracePair {
    qsizetype firstStart = 0;
    qsizetype firstEnd = 0;
    qsizetype secondStart = 0;
    qsizetype secondEnd = 0;

    friend bool operator==(const BracePair &, const BracePair &) = default;
};

/// Finds the partner of a bracket or tag name at a position of the text, and shows both. Only brackets of the same colour
/// are partners, so that one in a comment or a string doesn't end a block. The search looks a limited way, so that
/// typing costs the same in a large text.
class BraceMatcher
{
public:
    explicit BraceMatcher(SciEngine engine);

    /// The pair at the position, `first` the one at it; nothing where there is no bracket, or no partner near enough.
    std::optional<BracePair> pairAt(qsizetype position) const;
    /// Marks the pair at the caret, and takes the marks of the last one away.
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/languagedefinition.h"
#include "syntax/wordtable.h"

#include <QByteArrayView>

#include <span>

namespace zephira {

/// The state of folding at the start of a line: the nesting depth, 0 outermost, and whether a comment continues from
/// the line above (whose last byte then has the comment style).
struct FoldState {
    int level = 0;
    bool inComment = false;

    friend bool operator==(const FoldState &, const FoldState &) = default;
};

/// The fold data of one line.
struct FoldLine {
    int level = 0;       ///< depth at the line's start, 0 outermost
    bool header = false; ///< the depth is greater at its end than at its start
    bool blank = false;  ///< contains only spaces and tabs

    friend bool operator==(const FoldLine &, const FoldLine &) = default;
};

/// Finds folds in styled text: scope keywords, elements that have an end tag, and multi-line comments. Works line by
/// line and can begin at any line whose FoldState is known.
class FoldRules
{
public:
    explicit FoldRules(const LanguageDefinition &definition);

    /// Folds one line, including its line end, and updates `state` to that of the next line. `styles` has one entry per
    /// byte of the line.
    FoldLine fold(QByteArrayView line, std::span<const unsigned char> styles, FoldState &state) const;

private:
    WordTable m_scopes;
    WordTable m_elements;
    bool m_everyElement = false;
};

} // namespace zephira

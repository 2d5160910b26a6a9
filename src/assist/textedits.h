// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <algorithm>
#include <functional>
#include <vector>

namespace zephira {

class CodeMax;
class SciEngine;

/// One of several selections, in bytes. A caret alone has both at the same place.
struct TextSelection {
    qsizetype anchor = 0;
    qsizetype caret = 0;

    qsizetype start() const { return std::min(anchor, caret); }
    qsizetype end() const { return std::max(anchor, caret); }
    bool isEmpty() const { return anchor == caret; }
    friend bool operator==(const TextSelection &, const TextSelection &) = default;
};

/// All selections in the order of the text. A rectangle has one in each line. `main` is the index of the one that was made
/// last.
struct TextSelections {
    std::vector<TextSelection> all;
    std::size_t main = 0;
};

TextSelections textSelections(const SciEngine &engine);
bool isAnySelected(const TextSelections &selections);
/// Selects these, of which there must be at least one, and shows the main one.
void selectTexts(CodeMax &rt, const TextSelections &selections);

/// Changes of a text at several places, which are told from the text's beginning to its end and made together.
class TextEdits
{
public:
    /// Puts `text` in the place of the bytes from start up to end, which aren't before the end of the change told last.
    /// An equal text is no change. A place at the start of an insertion is behind it then, unless it pushes nothing.
    void replace(const SciEngine &engine, qsizetype start, qsizetype end, const QByteArray &text, bool pushes = true);

    /// Where a place behind the changes told so far will be.
    qsizetype moved(qsizetype position) const { return position + m_growth; }
    /// Where a place will be when all changes are made.
    qsizetype placeOf(qsizetype position) const;
    bool isEmpty() const { return m_edits.empty(); }

    /// Makes the changes in one undo step. Then selects what `selections` returns, which is called when they are made.
    void make(CodeMax &rt, const std::function<TextSelections()> &selections) const;
    void make(CodeMax &rt, const TextSelections &selections) const;

private:
    struct Edit {
        qsizetype start = 0;
        qsizetype end = 0;
        QByteArray text;
        bool pushes = true;
        /// By how much the changes before have made the text longer.
        qsizetype growthBefore = 0;
    };

    std::vector<Edit> m_edits;
    qsizetype m_growth = 0;
};

} // namespace zephira

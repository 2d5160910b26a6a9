// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/patternsearch.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace zephira {

class CodeMax;

/// What came of a search, for the dialog's line of text.
struct SearchOutcome {
    bool found = false;
    bool wrapped = false; ///< only found beyond the text's end, or its beginning
    int replaced = 0;
    QString error = {}; ///< a sentence, where the pattern itself is wrong
};

/// The control's search: the pattern and options that the dialog sets and that the "find next" command goes on with.
/// Searching goes from the selection and selects what it finds.
class EditorSearch
{
public:
    struct Options {
        SearchRequest request = {};
        QString replacement = {};
        bool inSelection = false;
        bool wrap = true;
        bool backward = false;
    };

    explicit EditorSearch(CodeMax &editor) : m_editor(editor) {}

    /// Fails for a malformed expression; the options before then stay in force.
    Result<void> setOptions(const Options &options);
    const Options &options() const { return m_options; }
    bool hasPattern() const { return m_search.has_value(); }
    /// Limits searches "in the selection" to what is selected now.
    void takeScope();
    bool isReadOnly() const;
    /// The selected text, if it is a piece of one line.
    QString seed() const;
    bool selectionSpansLines() const;

    /// Selects the next match in the direction, `against` it where that is asked for.
    SearchOutcome find(bool against = false);
    /// Replaces the match that is selected, if one is, and selects the next.
    SearchOutcome replace();
    /// Replaces all matches in the text, or in the selection, in one step that can be undone.
    SearchOutcome replaceAll();

private:
    using Range = std::pair<qsizetype, qsizetype>;

    void refresh();
    qsizetype toOffset(qsizetype position) const;
    qsizetype toPosition(qsizetype offset) const;
    std::vector<Range> toPositions(const std::vector<TextMatch> &matches) const;
    Range scope() const;
    void show(const TextMatch &match);

    CodeMax &m_editor;
    Options m_options;
    std::optional<PatternSearch> m_search;
    std::optional<Range> m_scope; ///< byte positions
    /// The text with line feeds for line ends, and where its lines begin; good for one version of the editor's text.
    QString m_text;
    std::vector<qsizetype> m_lineStarts;
    quint64 m_version = 0;
    std::optional<TextMatch> m_last;
};

} // namespace zephira

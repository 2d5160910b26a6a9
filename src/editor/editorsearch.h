// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/patternsearch.h"
#include "core/searchhistory.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace zephira {

class CodeMax;

/// The result of a search, for the dialog's message.
struct SearchOutcome {
    bool found = false;
    bool wrapped = false; ///< found only after wrapping around
    int replaced = 0;
    QString error = {}; ///< a sentence if the pattern is invalid
};

/// The control's search: the pattern and options set by the dialog and also used by the "find next" command. A search
/// starts at the selection and selects the match.
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

    /// A range of bytes or of UTF-16 code units; the end is exclusive.
    using Range = std::pair<qsizetype, qsizetype>;

    explicit EditorSearch(CodeMax &editor);

    /// Fails for an invalid regular expression; then the previous options stay in effect.
    Result<void> setOptions(const Options &options);
    const Options &options() const { return m_options; }
    bool hasPattern() const { return m_search.has_value(); }
    /// Limits searches "in the selection" to the current selection.
    void takeScope();
    bool isReadOnly() const;
    /// The selected text, if it is within one line.
    QString seed() const;
    bool selectionSpansLines() const;

    /// Selects the next match in the direction set in the options, or in the opposite one if `against`.
    SearchOutcome find(bool against = false);
    /// Replaces the selected match, if there is one, and selects the next.
    SearchOutcome replace();
    /// Replaces all matches in the text, or in the selection, in one undo step.
    SearchOutcome replaceAll();

    /// Selects the word at the caret and then its next occurrence, or the previous one; if something is selected within a
    /// line, the next occurrence of that. It becomes the pattern of the next searches.
    SearchOutcome findWord(bool backward);

    CodeMax &editor() const { return m_editor; }
    /// The text with line feeds as line ends, valid until it changes.
    const QString &plainText();
    /// What is searched: in UTF-16 code units of plainText(), or in bytes of the engine's buffer.
    Range scopeOf(bool inSelection);
    Range byteScope(bool inSelection) const;

    /// What was searched for before, the latest first; empty if nothing is kept for the user.
    QStringList words(SearchHistory::Kind kind) const;
    void remember(SearchHistory::Kind kind, const QString &text);

private:
    void refresh();
    qsizetype toOffset(qsizetype position) const;
    qsizetype toPosition(qsizetype offset) const;
    std::vector<Range> toPositions(const std::vector<TextMatch> &matches) const;
    void show(const TextMatch &match);

    CodeMax &m_editor;
    std::optional<SearchHistory> m_history;
    Options m_options;
    std::optional<PatternSearch> m_search;
    std::optional<Range> m_scope; ///< byte positions
    /// The text with line feeds as line ends, and the offsets of its lines; valid for one version of the editor's text.
    QString m_text;
    std::vector<qsizetype> m_lineStarts;
    quint64 m_version = 0;
    std::optional<TextMatch> m_last;
};

} // namespace zephira

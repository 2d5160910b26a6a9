// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/patternsearch.h"

#include <QObject>
#include <QTimer>

#include <array>
#include <optional>

namespace zephira {

class CodeMax;
class EditorSearch;

/// Marks the matches of a pattern in the part of the text that is seen, and counts those of the whole text in slices of
/// time, so that neither waits for the other nor a key for them.
class SearchMarks final : public QObject
{
    Q_OBJECT

public:
    struct Count {
        int matches = 0;
        /// False while there may be more.
        bool isComplete = false;
        /// The expression needed too many steps.
        bool gaveUp = false;

        friend bool operator==(const Count &, const Count &) = default;
    };

    explicit SearchMarks(EditorSearch &search);
    ~SearchMarks() override;

    /// Marks and counts from now on, also after changes of the text. An empty pattern or an invalid one ends that.
    void show(const SearchRequest &request, bool inSelection);
    /// Removes the marks and counts no more.
    void hide();
    bool isShown() const { return m_pattern.has_value(); }

Q_SIGNALS:
    void counted(const zephira::SearchMarks::Count &count);

private:
    /// What of the text is seen; when it changes, other matches are marked.
    using View = std::array<qsizetype, 4>;

    View view() const;
    void lookAgain();
    void mark();
    void clear();
    void restartCount();
    void countSlice();

    EditorSearch &m_search;
    CodeMax &m_editor;
    std::optional<PatternSearch> m_pattern;
    bool m_inSelection = false;
    View m_marked{-1, -1, -1, -1};
    bool m_hasMarks = false;

    QTimer m_slices;
    QTimer m_pause;
    quint64 m_version = 0;
    qsizetype m_place = 0;
    Count m_count;
};

} // namespace zephira

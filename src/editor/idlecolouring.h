// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"
#include "syntax/syntaxengine.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <vector>

namespace zephira {

/// Colours the part of the text that is on the screen and no more. What can be done at once is done while the window is
/// painted; behind a jump over a large distance the text comes first and the colours follow in small slices. After an edit
/// only the lines are coloured again whose beginning finds another state than before.
class IdleColouring : public QObject
{
    Q_OBJECT
public:
    /// Hears of each line that was coloured: its 0-based number, its nesting depth and the next line's.
    using LineFolded = std::function<void(qsizetype line, int level, int nextLevel)>;

    explicit IdleColouring(SciEngine engine, QObject *parent = nullptr);

    /// Colours by another language from now on, nullptr for none.
    void setLanguage(std::shared_ptr<const SyntaxEngine> language);
    void setLineFolded(LineFolded hearer) { m_lineFolded = std::move(hearer); }

    /// To be called in front of every insertion and deletion.
    void beforeEdit(qsizetype position);
    /// Forgets everything: the text has been replaced behind the colouring's back.
    void restart();
    /// Colours up to the line that holds the position: at once if it isn't far, else in slices while the program is idle.
    void colourTo(qsizetype position);
    /// Colours the whole text now.
    void colourAll();
    /// Whether a slice is still to come.
    bool isPending() const { return m_timer.isActive(); }
    /// Whether a line so long that its runs are broken was ever coloured.
    bool hasLongLines() const { return m_hasLongLines; }
    /// Bytes that have been coloured since the control was made, those coloured again included.
    qint64 work() const { return m_work; }

private:
    /// Lines whose text has changed since they were coloured, by number, both ends included.
    struct Dirty {
        qsizetype first = std::numeric_limits<qsizetype>::max();
        qsizetype last = -1;
        bool any() const { return last >= 0; }
    };

    /// Whole lines of the text, from a 0-based line and its byte position on.
    struct Stretch {
        qsizetype line = 0;
        qsizetype start = 0;
        QByteArrayView text;
    };
    /// What came of styling a stretch: where its further lines begin, as offsets, and the states they begin with; how many
    /// of its bytes have styles; and whether it stopped where the text had found its old state.
    struct StyledLines {
        std::vector<qsizetype> offsets;
        std::vector<LineState> states;
        qsizetype size = 0;
        bool stopped = false;
    };
    /// The line behind those that were folded, and its nesting depth.
    struct FoldedLines {
        qsizetype nextLine = 0;
        int level = 0;
    };

    void settleEdit();
    void slice();
    bool colourSome(qsizetype target, qsizetype bytes);
    qsizetype nextLine() const;
    Stretch nextStretch(qsizetype targetLine, qsizetype bytes) const;
    StyledLines styleStretch(const Stretch &stretch, bool mayStopEarly);
    std::span<const unsigned char> shownStyles(QByteArrayView text, const std::vector<qsizetype> &offsets);
    FoldedLines foldStretch(const Stretch &stretch, const StyledLines &styled);
    bool noteColoured(const StyledLines &styled, const FoldedLines &folded);
    void setFold(qsizetype line, qsizetype level);
    FoldState foldStateAt(qsizetype line) const;
    void markColoured();

    SciEngine m_engine;
    std::shared_ptr<const SyntaxEngine> m_language;
    LineFolded m_lineFolded;
    QTimer m_timer;
    std::vector<unsigned char> m_styles;
    /// The same where the text has long lines, with their runs broken.
    std::vector<unsigned char> m_brokenStyles;
    bool m_hasLongLines = false;
    Dirty m_dirty;
    /// Lines in front of this one have been coloured; those of m_dirty await it again.
    qsizetype m_colouredLines = 0;
    /// An edit that has been announced: the line where it begins, and how many lines the text had before.
    qsizetype m_editLine = -1;
    qsizetype m_linesBefore = 0;
    qsizetype m_wanted = 0;
    qint64 m_work = 0;
};

} // namespace zephira

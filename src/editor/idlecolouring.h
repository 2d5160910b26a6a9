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

/// Colours the text only as far as it is shown. A small amount is coloured at once while the window is painted; after a
/// long jump the text is shown first and the colours follow in small slices. After an edit only the lines whose start
/// state has changed are coloured again.
class IdleColouring : public QObject
{
    Q_OBJECT
public:
    /// Called for each coloured line with its 0-based number, its nesting depth and that of the next line.
    using LineFolded = std::function<void(qsizetype line, int level, int nextLevel)>;

    explicit IdleColouring(SciEngine engine, QObject *parent = nullptr);

    /// Sets the language to colour by, nullptr for none.
    void setLanguage(std::shared_ptr<const SyntaxEngine> language);
    void setLineFolded(LineFolded hearer) { m_lineFolded = std::move(hearer); }

    /// To be called before every insertion and deletion, with its byte position.
    void beforeEdit(qsizetype position);
    /// Resets everything after the whole text was replaced.
    void restart();
    /// Colours up to the line that contains the byte position: at once if it is near, otherwise in slices while the
    /// program is idle.
    void colourTo(qsizetype position);
    /// Colours the whole text now.
    void colourAll();
    /// Whether another slice is scheduled.
    bool isPending() const { return m_timer.isActive(); }
    /// Whether any line was coloured that is so long that its runs are broken up.
    bool hasLongLines() const { return m_hasLongLines; }
    /// Number of bytes coloured since the control was created, counting repeated colouring.
    qint64 work() const { return m_work; }

private:
    /// Range of lines (0-based, inclusive) whose text has changed since they were coloured.
    struct Dirty {
        qsizetype first = std::numeric_limits<qsizetype>::max();
        qsizetype last = -1;
        bool any() const { return last >= 0; }
    };

    /// Whole lines of the text, starting at a 0-based line and its byte position.
    struct Stretch {
        qsizetype line = 0;
        qsizetype start = 0;
        QByteArrayView text;
    };
    /// The result of styling a stretch: the offsets and states of its line starts after the first; the number of bytes
    /// styled; and whether styling stopped because the text had reached its old state.
    struct StyledLines {
        std::vector<qsizetype> offsets;
        std::vector<LineState> states;
        qsizetype size = 0;
        bool stopped = false;
    };
    /// The line after those that were folded, and its nesting depth.
    struct FoldedLines {
        qsizetype nextLine = 0;
        int level = 0;
    };

    void passOver(qsizetype position);
    void settleEdit();
    void slice();
    bool colourSome(qsizetype target, qsizetype bytes);
    qsizetype nextLine() const;
    Stretch nextStretch(qsizetype targetLine, qsizetype bytes) const;
    StyledLines styleStretch(const Stretch &stretch, bool mayStopEarly);
    void showStyles(qsizetype start, QByteArrayView text, const std::vector<qsizetype> &offsets);
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
    /// The same for text with long lines, with their runs broken up.
    std::vector<unsigned char> m_brokenStyles;
    bool m_hasLongLines = false;
    Dirty m_dirty;
    /// Lines before this one are coloured, except those in m_dirty.
    qsizetype m_colouredLines = 0;
    /// An announced edit: the line where it begins, and the number of lines before the edit.
    qsizetype m_editLine = -1;
    qsizetype m_linesBefore = 0;
    qsizetype m_wanted = 0;
    qint64 m_work = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/foldlevels.h"
#include "syntax/languagedefinition.h"
#include "syntax/syntaxstyle.h"

#include <QByteArrayView>

#include <memory>
#include <span>

namespace zephira {

class LineLexer;

/// Everything that colouring has to know at the start of a line, in 32 bits. 0 is the state at the start of a text.
using LineState = quint32;

/// Hears of each line start that a styling run reaches.
class LineStateSink
{
public:
    virtual ~LineStateSink() = default;
    /// `offset` is the line's first byte, counted from the start of the range. False ends the run before this line: the
    /// editor returns it where the state equals the one it stored, because from there on nothing changes.
    virtual bool lineStart(qsizetype offset, LineState state) = 0;
};

/// How far a styling run came: bytes styled, and the state behind them, which is that of a line start when the styled
/// text ends in a line end (or is empty).
struct StyledRange {
    qsizetype end = 0;
    LineState state = 0;
};

/// Colours text of one language. Compiled once from a definition, never changed afterwards, and so usable for any number
/// of texts at once. Works on UTF-8 bytes and writes one SyntaxStyle each; bytes that aren't UTF-8 are ordinary text.
/// Lines end in CR LF, LF or CR. Styling may begin at any line start whose state is known.
class SyntaxEngine
{
public:
    explicit SyntaxEngine(const LanguageDefinition &definition);
    ~SyntaxEngine();
    SyntaxEngine(const SyntaxEngine &) = delete;
    SyntaxEngine &operator=(const SyntaxEngine &) = delete;

    /// Styles `text`, which begins at a line start, into `styles`, which has at least its size. A range that isn't the
    /// end of the document should end behind a line end: its last line is taken to end where the range ends.
    StyledRange styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles,
                           LineStateSink &sink) const;
    /// The same without anyone listening.
    StyledRange styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles) const;

    /// How this language's text is folded.
    const FoldRules &foldRules() const { return m_foldRules; }

private:
    std::unique_ptr<const LineLexer> m_lexer;
    FoldRules m_foldRules;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/codeplace.h"
#include "syntax/foldlevels.h"
#include "syntax/languagedefinition.h"
#include "syntax/syntaxstyle.h"

#include <QByteArrayView>

#include <memory>
#include <span>

namespace zephira {

class LineLexer;

/// The complete state of colouring at the start of a line, in 32 bits. 0 is the state at the start of a text.
using LineState = quint32;

/// Receives each line start that a styling run reaches.
class LineStateSink
{
public:
    virtual ~LineStateSink() = default;
    /// `offset` is the line's first byte, counted from the start of the range. Returning false ends the run before this
    /// line: the editor does so if the state equals the one it stored, because nothing changes from there on.
    virtual bool lineStart(qsizetype offset, LineState state) = 0;
};

/// The result of a styling run: the number of bytes styled, and the state after them, which is that of a line start if
/// the styled text ends in a line end (or is empty).
struct StyledRange {
    qsizetype end = 0;
    LineState state = 0;
};

/// Colours text of one language. It is compiled once from a definition and immutable, so it can be used for any number
/// of texts at once. Works on UTF-8 and writes one SyntaxStyle for each byte; invalid bytes are ordinary text. Lines
/// end in CR LF, LF or CR. Styling may begin at any line start whose state is known.
class SyntaxEngine
{
public:
    explicit SyntaxEngine(const LanguageDefinition &definition);
    ~SyntaxEngine();
    SyntaxEngine(const SyntaxEngine &) = delete;
    SyntaxEngine &operator=(const SyntaxEngine &) = delete;

    /// Styles `text`, which must begin at a line start, into `styles`, which must have at least the same size. Unless
    /// the range reaches the end of the document, it should end after a line end, because its last line is assumed to
    /// end with the range.
    StyledRange styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles,
                           LineStateSink &sink) const;
    /// The same without a sink.
    StyledRange styleRange(QByteArrayView text, LineState stateAtStart, std::span<unsigned char> styles) const;

    /// What stands at the end of a part of a line that begins where the line does. `before` is the style of the line end
    /// before it.
    CodePlace placeBehind(QByteArrayView partOfLine, LineState stateAtStart, SyntaxStyle before) const;

    /// The folding rules of this language.
    const FoldRules &foldRules() const { return m_foldRules; }

private:
    std::unique_ptr<const LineLexer> m_lexer;
    bool m_hasTags = false;
    FoldRules m_foldRules;
};

} // namespace zephira

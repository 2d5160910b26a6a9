// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/bytescan.h"
#include "syntax/taglexer.h"

namespace zephira {

/// The tag-aware lexer's progress through one line.
struct TagLexer::Walk {
    const StyleCanvas &canvas;
    const LineBytes &line;
    TagState state;
    const Byte *p = line.begin;
    const Byte *const end = line.end;
    /// The start of the value being read, if it is in this line and the value wasn't interrupted.
    const Byte *valueBegin = nullptr;

    void take(const Byte *to, SyntaxStyle style)
    {
        canvas.paint(p, to, style);
        p = to;
    }
    void take(std::ptrdiff_t count, SyntaxStyle style) { take(p + count, style); }

    Byte byteAt(std::ptrdiff_t offset) const { return end - p > offset ? p[offset] : Byte{0}; }
    bool at(QByteArrayView text) const { return standsAt(p, end, text); }
    /// Returns to the mode that surrounds tags, comments and declarations.
    void leave() { state.enter(state.inSubset ? Mode::Subset : Mode::Text); }
};

} // namespace zephira

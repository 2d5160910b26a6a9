// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/bytescan.h"
#include "syntax/taglexer.h"

namespace zephira {

/// The tag-aware lexer's way over one line.
struct TagLexer::Walk {
    const StyleCanvas &canvas;
    const LineBytes &line;
    TagState state;
    const Byte *p = line.begin;
    const Byte *const end = line.end;
    /// Where the value that is being read began, when it did so in this line and nothing interrupted it.
    const Byte *valueBegin = nullptr;

    void take(const Byte *to, SyntaxStyle style)
    {
        canvas.paint(p, to, style);
        p = to;
    }
    void take(std::ptrdiff_t count, SyntaxStyle style) { take(p + count, style); }

    Byte byteAt(std::ptrdiff_t offset) const { return end - p > offset ? p[offset] : Byte{0}; }
    bool at(QByteArrayView text) const { return standsAt(p, end, text); }
    /// Goes back to what surrounds tags, comments and declarations.
    void leave() { state.enter(state.inSubset ? Mode::Subset : Mode::Text); }
};

} // namespace zephira

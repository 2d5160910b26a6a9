// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/bytescan.h"
#include "syntax/procedurallexer.h"

namespace zephira {

/// A procedural lexer's progress through one piece of a line.
struct ProceduralLexer::Walk {
    const StyleCanvas &canvas;
    const Byte *const begin;
    const Byte *const end;
    const bool lineStart;

    CodeState state;
    const Byte *p = begin;
    const Byte *plain = begin;       ///< start of the text that isn't painted yet
    bool operandBefore = !lineStart; ///< a slash here is a division
    bool slashesDivide = false;      ///< no regular expression can be closed after this point
    bool stopped = false;            ///< the language's own closing delimiter is at `p`

    std::size_t room() const { return static_cast<std::size_t>(end - p); }

    /// Paints the text before `p` that isn't part of a token.
    void flush()
    {
        if (plain < p)
            canvas.paint(plain, p, SyntaxStyle::Text);
        plain = p;
    }

    /// Paints the pending text and then everything up to `to`, and moves there.
    void take(const Byte *to, SyntaxStyle style)
    {
        flush();
        canvas.paint(p, to, style);
        p = plain = to;
    }
};

/// A one-byte hash that distinguishes the words after "<<<" and R" well enough.
inline Byte fingerprint(const Byte *p, const Byte *end)
{
    unsigned sum = 0;
    for (; p < end; ++p)
        sum = sum * 31 + *p;
    return static_cast<Byte>(sum ^ (sum >> 8));
}

} // namespace zephira

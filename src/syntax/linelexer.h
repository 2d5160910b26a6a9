// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/syntaxstyle.h"

#include <QtGlobal>

#include <cstring>

namespace zephira {

using Byte = unsigned char;

/// A text and the style bytes being written for it, one per byte.
struct StyleCanvas {
    const Byte *text;
    Byte *styles;

    /// Sets the style of the bytes from `from` up to `to`. Most runs are a few bytes long, for which two overlapping
    /// stores cost less than a call.
    void paint(const Byte *from, const Byte *to, SyntaxStyle style) const
    {
        const std::size_t count = static_cast<std::size_t>(to - from);
        Byte *out = styles + (from - text);
        const quint64 eight = 0x0101010101010101ull * static_cast<Byte>(style);
        if (count > 16) {
            std::memset(out, static_cast<Byte>(style), count);
        } else if (count >= 8) {
            std::memcpy(out, &eight, 8);
            std::memcpy(out + count - 8, &eight, 8);
        } else if (count >= 4) {
            std::memcpy(out, &eight, 4);
            std::memcpy(out + count - 4, &eight, 4);
        } else {
            for (std::size_t i = 0; i < count; ++i)
                out[i] = static_cast<Byte>(style);
        }
    }
};

/// One line: its text from `begin` to `end`, its line end from `end` to `next` (empty in the last line).
struct LineBytes {
    const Byte *begin;
    const Byte *end;
    const Byte *next;
};

/// Colours whole lines.
class LineLexer
{
public:
    virtual ~LineLexer() = default;
    /// Colours one line and returns the state at the start of the next one. Any 32-bit number is accepted as a state.
    virtual quint32 paintLine(const StyleCanvas &canvas, const LineBytes &line, quint32 state) const = 0;
};

/// The number of bits available for a code lexer's state when its text is embedded in another.
constexpr unsigned embeddedStateBits = 11;

/// Colours code that may be embedded in another text, and so comes in pieces of a line.
class CodeLexer
{
public:
    virtual ~CodeLexer() = default;
    /// Colours a piece of a line, updates `state`, and returns where it stopped: at `end`, or before it at a delimiter
    /// with which the language itself ends its block. `lineStart` tells whether the piece starts a line.
    virtual const Byte *paint(const StyleCanvas &canvas, const Byte *begin, const Byte *end, bool lineStart,
                              quint32 &state) const = 0;
    /// The state after a line end.
    virtual quint32 behindLineEnd(quint32 state) const = 0;
    /// The style of a line end, given the state after it.
    virtual SyntaxStyle lineEndStyle(quint32 state) const = 0;
};

} // namespace zephira

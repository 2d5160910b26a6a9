// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

namespace zephira {

/// The state of a procedural lexer between two pieces of text. Packed it takes `embeddedStateBits` bits, and more only
/// for the second and later pairs of comment delimiters.
struct CodeState {
    enum class Kind : Byte { Code, Comment, String, Template, HereDocument, RawString, LineComment, TextBlock };

    Kind kind = Kind::Code;
    /// The open substitutions of template strings: their number (0 to 2), and the number of open braces in each (0 to
    /// 7).
    Byte substitutions = 0;
    /// In strings: the index of the delimiter, or a fingerprint of the word that ends the string.
    Byte ending = 0;
    /// In comments: the index of the pair of delimiters.
    quint16 pair = 0;

    static CodeState unpacked(quint32 bits)
    {
        CodeState state;
        state.kind = static_cast<Kind>(bits & 7);
        (state.carriesEnding() ? state.ending : state.substitutions) = static_cast<Byte>(bits >> 3);
        state.pair = static_cast<quint16>(bits >> embeddedStateBits);
        return state;
    }

    quint32 packed() const
    {
        const quint32 value = carriesEnding() ? ending : substitutions;
        return static_cast<quint32>(kind) | value << 3
            | (kind == Kind::Comment ? quint32{pair} << embeddedStateBits : 0u);
    }

    unsigned openSubstitutions() const { return substitutions & 3u; }

    void openSubstitution() { substitutions = static_cast<Byte>(substitutions + 1); }

    /// Counts a brace inside the innermost substitution. False for the closing brace that ends the substitution itself.
    bool countBrace(bool opening)
    {
        const unsigned shift = openSubstitutions() < 2 ? 2 : 5;
        const unsigned braces = (substitutions >> shift) & 7u;
        if (!opening && braces == 0) {
            substitutions = static_cast<Byte>(substitutions - 1);
            return false;
        }
        const unsigned counted = opening ? (braces < 7 ? braces + 1 : braces) : braces - 1;
        substitutions = static_cast<Byte>((substitutions & ~(7u << shift)) | counted << shift);
        return true;
    }

private:
    bool carriesEnding() const
    {
        return kind == Kind::String || kind == Kind::HereDocument || kind == Kind::RawString || kind == Kind::TextBlock;
    }
};

/// The maximum nesting of substitutions; a deeper one is treated as text.
constexpr unsigned mostSubstitutions = 2;

} // namespace zephira

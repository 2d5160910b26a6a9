// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/longruns.h"

#include "core/utf8character.h"

#include <QChar>

#include <algorithm>

namespace zephira {

namespace {

/// Letters of alphabets in which neighbours aren't joined, and the characters used between them.
bool isApart(char32_t code)
{
    constexpr char32_t behindCyrillic = 0x530;
    return code < 0x80 || (code < behindCyrillic && !QChar::isMark(code));
}

/// Characters that each stand for a syllable or a word.
bool isIdeograph(char32_t code)
{
    const bool isKana = code >= 0x3041 && code < 0x3100 && !QChar::isMark(code);
    return isKana || (code >= 0x3400 && code < 0xa000) || (code >= 0xac00 && code < 0xd7a4)
        || (code >= 0x20000 && code < 0x32000);
}

/// Finds where the pieces of a run begin.
class Pieces
{
public:
    /// Takes the run's next character; returns whether it begins a piece.
    bool beginsWith(Utf8Character next)
    {
        const bool begins = isBreak(next.code);
        m_word = begins && (m_before == ' ' || next.code == ' ') ? 0 : m_word;
        m_piece = begins ? 0 : m_piece;
        m_word += next.size;
        m_piece += 1;
        m_before = next.code;
        return begins;
    }

private:
    bool isBreak(char32_t next) const
    {
        if (m_before == ' ' && next != ' ')
            return isApart(next) || isIdeograph(next);
        if (isIdeograph(m_before) && isIdeograph(next))
            return true;
        return m_word >= longestWord && m_piece >= 2 && isApart(m_before) && isApart(next);
    }

    char32_t m_before = 0;
    qsizetype m_word = 0;    ///< bytes since the last blank
    std::size_t m_piece = 0; ///< characters since the last beginning
};

} // namespace

void breakLongRuns(QByteArrayView text, std::span<unsigned char> styles)
{
    unsigned char style = 0;
    bool isTwin = false;
    Pieces pieces;
    for (std::size_t i = 0; i < styles.size();) {
        const Utf8Character c = utf8CharacterAt(text, static_cast<qsizetype>(i));
        if (i == 0 || styles[i] != style) {
            style = styles[i];
            isTwin = false;
            pieces = {};
            pieces.beginsWith(c);
        } else if (pieces.beginsWith(c)) {
            isTwin = !isTwin;
        }
        for (const std::size_t end = std::min(i + static_cast<std::size_t>(c.size), styles.size()); i < end; ++i) {
            if (isTwin && styles[i] < twinDistance)
                styles[i] = static_cast<unsigned char>(styles[i] + twinDistance);
        }
    }
}

} // namespace zephira

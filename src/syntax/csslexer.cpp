// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/csslexer.h"

#include "syntax/bytescan.h"
#include "syntax/numbers.h"

#include <algorithm>

namespace zephira {

namespace {

/// The part of a statement.
enum class Part : Byte { Start, Selector, Property, Value, AtRule };

/// Text in which only its end matters.
enum class Inside : Byte { Nothing, Comment, DoubleQuotes, SingleQuotes, Url };

struct CssState {
    Part part = Part::Start;
    Inside inside = Inside::Nothing;
    bool escapedLineEnd = false;
    Byte depth = 0; ///< number of open braces, at most 15

    static CssState unpacked(quint32 bits)
    {
        CssState state;
        state.part = static_cast<Part>(std::min(bits & 7u, static_cast<quint32>(Part::AtRule)));
        state.inside = static_cast<Inside>(std::min(bits >> 3 & 7u, static_cast<quint32>(Inside::Url)));
        state.escapedLineEnd = (bits >> 6 & 1u) != 0;
        state.depth = static_cast<Byte>(bits >> 7 & 15u);
        return state;
    }

    quint32 packed() const
    {
        return static_cast<quint32>(part) | static_cast<quint32>(inside) << 3 | quint32{escapedLineEnd} << 6
            | quint32{depth} << 7;
    }
};

bool isName(Byte byte)
{
    return isLetter(byte) || isDigit(byte) || byte == '-' || byte == '_' || byte >= 0x80 || byte == '\\';
}

const Byte *nameEnd(const Byte *p, const Byte *end)
{
    for (; p < end && isName(*p); ++p) {
        if (*p == '\\' && p + 1 < end && p[1] < 0x80)
            ++p;
    }
    return std::min(p, end);
}

/// The kind of the statement that begins at `p`. One that isn't finished in this line is a declaration only inside a
/// rule, and only if it doesn't continue with another selector.
Part partAt(const Byte *p, const Byte *end, Byte depth)
{
    if (*p == '@')
        return Part::AtRule;
    const Byte *stop = std::find_if(p, end, [](Byte b) { return b == '{' || b == ';' || b == '}'; });
    if (stop < end)
        return *stop == '{' ? Part::Selector : Part::Property;
    while (stop > p && isBlank(stop[-1]))
        --stop;
    return depth == 0 || (stop > p && stop[-1] == ',') ? Part::Selector : Part::Property;
}

/// The progress through one piece of a line.
class CssWalk
{
public:
    CssWalk(const StyleCanvas &canvas, const Byte *begin, const Byte *end, CssState state)
        : m_state(state), m_canvas(canvas), m_p(begin), m_end(end)
    {}

    void run()
    {
        while (m_p < m_end) {
            if (m_state.inside == Inside::Nothing)
                token();
            else
                inside();
        }
    }

    CssState m_state;

private:
    void take(const Byte *to, SyntaxStyle style)
    {
        m_canvas.paint(m_p, to, style);
        m_p = to;
    }

    void open(Inside inside, const Byte *to)
    {
        m_state.inside = inside;
        take(to, inside == Inside::Comment ? SyntaxStyle::Comment : SyntaxStyle::String);
    }

    void inside()
    {
        const bool comment = m_state.inside == Inside::Comment;
        const Byte *q = m_p;
        m_state.escapedLineEnd = false;
        if (comment) {
            q = findText(m_p, m_end, "*/");
            if (q < m_end) {
                q += 2;
                m_state.inside = Inside::Nothing;
            }
        } else {
            const Byte close = m_state.inside == Inside::Url ? ')'
                : m_state.inside == Inside::DoubleQuotes     ? '"'
                                                             : '\'';
            while (q < m_end && *q != close)
                q += *q == '\\' ? 2 : 1;
            m_state.escapedLineEnd = q > m_end;
            // The closing parenthesis isn't part of the address.
            if (q < m_end) {
                q += m_state.inside == Inside::Url ? 0 : 1;
                m_state.inside = Inside::Nothing;
            }
        }
        take(std::min(q, m_end), comment ? SyntaxStyle::Comment : SyntaxStyle::String);
    }

    void token()
    {
        const Byte byte = *m_p;
        if (isBlank(byte) || byte < ' ') {
            take(std::find_if_not(m_p, m_end, [](Byte b) { return b <= ' '; }), SyntaxStyle::Text);
        } else if (byte == '/' && standsAt(m_p, m_end, "/*")) {
            open(Inside::Comment, m_p + 2);
        } else if (standsAt(m_p, m_end, "<!--") || standsAt(m_p, m_end, "-->")) {
            take(m_p + (byte == '<' ? 4 : 3), SyntaxStyle::Comment);
        } else if (byte == '"' || byte == '\'') {
            open(byte == '"' ? Inside::DoubleQuotes : Inside::SingleQuotes, m_p + 1);
        } else if (byte == '{' || byte == '}') {
            brace(byte == '{');
        } else if (byte == ';') {
            m_state.part = Part::Start;
            take(m_p + 1, SyntaxStyle::Operator);
        } else {
            if (m_state.part == Part::Start)
                m_state.part = partAt(m_p, m_end, m_state.depth);
            switch (m_state.part) {
            case Part::Start:
            case Part::Selector:
                return selector();
            case Part::Property:
                return property();
            case Part::AtRule:
            case Part::Value:
                return value();
            }
        }
    }

    void brace(bool opening)
    {
        if (opening)
            m_state.depth = std::min<Byte>(15, static_cast<Byte>(m_state.depth + 1));
        else if (m_state.depth > 0)
            m_state.depth = static_cast<Byte>(m_state.depth - 1);
        m_state.part = Part::Start;
        take(m_p + 1, SyntaxStyle::ScopeKeyword);
    }

    void selector()
    {
        const bool sign = *m_p == '.' || *m_p == '#';
        const Byte *q = nameEnd(m_p + (sign ? 1 : 0), m_end);
        if (*m_p == ':') {
            const Byte *name = std::find_if_not(m_p, m_end, [](Byte b) { return b == ':'; });
            take(nameEnd(name, m_end), SyntaxStyle::Keyword);
        } else if (*m_p == '[') {
            take(m_p + 1, SyntaxStyle::Operator);
            take(nameEnd(m_p, m_end), SyntaxStyle::TagAttribute);
        } else if (q > m_p && !isDigit(*m_p)) {
            take(q, SyntaxStyle::TagElement);
        } else if (isDigit(*m_p)) {
            number();
        } else {
            take(m_p + 1, SyntaxStyle::Operator);
        }
    }

    void property()
    {
        if (isName(*m_p))
            return take(nameEnd(m_p, m_end), SyntaxStyle::TagAttribute);
        if (*m_p == ':')
            m_state.part = Part::Value;
        take(m_p + 1, SyntaxStyle::Operator);
    }

    void value()
    {
        const bool fraction = *m_p == '.' && m_end - m_p > 1 && isDigit(m_p[1]);
        if (isDigit(*m_p) || fraction)
            return number();
        if (*m_p == '@')
            return take(nameEnd(m_p + 1, m_end), SyntaxStyle::Keyword);
        if (*m_p == '!') {
            const Byte *word = std::find_if_not(m_p + 1, m_end, isBlank);
            return take(nameEnd(word, m_end), SyntaxStyle::Keyword);
        }
        if (*m_p == '#') {
            const Byte *q = nameEnd(m_p + 1, m_end);
            return take(q, std::all_of(m_p + 1, q, isHexDigit) ? SyntaxStyle::Number : SyntaxStyle::Text);
        }
        if (!isName(*m_p) || (*m_p == '-' && m_end - m_p > 1 && !isName(m_p[1])))
            return take(m_p + 1, SyntaxStyle::Operator);
        // A minus sign belongs to the number after it, but not to the name of a variable.
        if (*m_p == '-' && m_end - m_p > 1 && isDigit(m_p[1]))
            return take(m_p + 1, SyntaxStyle::Operator);
        const Byte *q = nameEnd(m_p, m_end);
        const bool url = q - m_p == 3 && q < m_end && *q == '(' && (m_p[0] | 32) == 'u' && (m_p[1] | 32) == 'r'
            && (m_p[2] | 32) == 'l';
        take(q, SyntaxStyle::Text);
        if (!url)
            return;
        take(q + 1, SyntaxStyle::Operator);
        const Byte *address = std::find_if_not(m_p, m_end, isBlank);
        take(address, SyntaxStyle::Text);
        if (address < m_end && *address != '"' && *address != '\'')
            m_state.inside = Inside::Url;
    }

    /// A number and its unit.
    void number()
    {
        const Byte *q = numberEnd(m_p, m_end, Dialect::None);
        take(q < m_end && *q == '%' ? q + 1 : q, SyntaxStyle::Number);
    }

    const StyleCanvas &m_canvas;
    const Byte *m_p;
    const Byte *const m_end;
};

} // namespace

const Byte *CssLexer::paint(const StyleCanvas &canvas, const Byte *begin, const Byte *end, bool, quint32 &state) const
{
    CssWalk walk(canvas, begin, end, CssState::unpacked(state));
    walk.run();
    state = walk.m_state.packed();
    return end;
}

quint32 CssLexer::behindLineEnd(quint32 bits) const
{
    CssState state = CssState::unpacked(bits);
    if (state.inside != Inside::Comment && !state.escapedLineEnd)
        state.inside = Inside::Nothing;
    state.escapedLineEnd = false;
    // An at-rule or a selector may continue; whether a declaration does is decided at the next line.
    return state.packed();
}

SyntaxStyle CssLexer::lineEndStyle(quint32 bits) const
{
    switch (CssState::unpacked(bits).inside) {
    case Inside::Nothing:
        return SyntaxStyle::Text;
    case Inside::Comment:
        return SyntaxStyle::Comment;
    default:
        return SyntaxStyle::String;
    }
}

} // namespace zephira

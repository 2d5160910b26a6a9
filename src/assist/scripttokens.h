// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace zephira {

/// How a language writes comments and strings.
struct ScriptSyntax {
    bool slashComments = false; ///< "//" and "/* */"
    bool hashComments = false;  ///< "#"
    bool dashComments = false;  ///< "--"
    bool quoteComments = false; ///< "'" and the word "rem"
    bool braceComments = false; ///< "{ }" and "(* *)"
    bool singleQuotes = true;   ///< 'text'
    bool backslashes = true;    ///< a backslash in a string takes the next character
    bool templates = false;     ///< `text ${…}`
    bool patterns = false;      ///< /pattern/
};

struct ScriptToken {
    enum class Kind { End, Word, Sign, Literal };

    Kind kind = Kind::End;
    /// A word, or one character; empty for a literal.
    QByteArrayView text = {};
    /// Byte offset in the text.
    qsizetype position = 0;

    bool is(char sign) const { return kind == Kind::Sign && text.front() == sign; }
    bool isWord() const { return kind == Kind::Word; }
};

/// Cuts a program into words, signs and literals, without comments. Any text is read in one pass; a string without an end
/// ends with its line, a comment without one with the text.
class ScriptTokens
{
public:
    ScriptTokens(QByteArrayView text, const ScriptSyntax &syntax) : m_text(text), m_syntax(syntax) {}

    ScriptToken next();

private:
    bool startsWith(const char *sign) const;
    bool skipComment();
    void skipLine();
    void skipBehind(const char *end);
    void skipString(char quote);
    void skipTemplate();
    bool skipPattern();
    char at(qsizetype position) const { return position < m_text.size() ? m_text[position] : '\0'; }

    QByteArrayView m_text;
    ScriptSyntax m_syntax;
    qsizetype m_at = 0;
    /// Whether a slash would divide: the last token was a value.
    bool m_afterValue = false;
};

} // namespace zephira

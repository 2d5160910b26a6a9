// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/scriptsymbols.h"

#include "assist/scripttokens.h"

#include <algorithm>
#include <initializer_list>

namespace zephira {

namespace {

using Kind = DocumentSymbol::Kind;

ScriptSyntax syntaxOf(ScriptLanguage language)
{
    switch (language) {
    case ScriptLanguage::JavaScript:
        return {.slashComments = true, .templates = true, .patterns = true};
    case ScriptLanguage::Php:
        return {.slashComments = true, .hashComments = true};
    case ScriptLanguage::C:
        return {.slashComments = true};
    case ScriptLanguage::Perl:
        return {.hashComments = true};
    case ScriptLanguage::Basic:
        return {.quoteComments = true, .singleQuotes = false, .backslashes = false};
    case ScriptLanguage::Pascal:
        return {.slashComments = true, .braceComments = true, .backslashes = false};
    case ScriptLanguage::Sql:
        return {.slashComments = true, .dashComments = true, .backslashes = false};
    }
    return {};
}

bool isOneOf(QByteArrayView word, std::initializer_list<QByteArrayView> words)
{
    return std::ranges::any_of(words,
                               [word](QByteArrayView each) { return word.compare(each, Qt::CaseInsensitive) == 0; });
}

/// Functions that a word announces: "Sub Name", "procedure Name", "create view name".
class AnnouncedSymbols
{
public:
    explicit AnnouncedSymbols(ScriptLanguage language) : m_language(language) {}

    /// Takes the next token; returns whether it is a name, and sets `kind`.
    bool isName(const ScriptToken &token, Kind &kind)
    {
        if (!token.isWord()) {
            // "TForm.Create" in Pascal is one name, of which the first part is enough.
            m_announced = false;
            m_ends = false;
            return false;
        }
        const QByteArrayView word = token.text;
        if (m_announced && !isPrefix(word)) {
            m_announced = false;
            kind = m_kind;
            return true;
        }
        if (m_announced)
            return false;
        const bool isAfterEnd = m_ends;
        m_ends = isOneOf(word, {"end", "exit"});
        announce(word, isAfterEnd);
        return false;
    }

private:
    void announce(QByteArrayView word, bool isAfterEnd)
    {
        m_kind = Kind::Function;
        switch (m_language) {
        case ScriptLanguage::Basic:
            m_announced = !isAfterEnd && isOneOf(word, {"sub", "function", "property", "class"});
            break;
        case ScriptLanguage::Pascal:
            m_announced = isOneOf(word, {"procedure", "function", "constructor", "destructor"});
            break;
        case ScriptLanguage::Perl:
            m_announced = isOneOf(word, {"sub", "package"});
            break;
        case ScriptLanguage::Sql:
            if (isOneOf(word, {"create"}))
                m_creates = true;
            else if (m_creates && isOneOf(word, {"procedure", "function", "view", "table", "trigger", "index"}))
                announceCreated();
            else if (m_creates && !isOneOf(word, {"or", "replace", "unique", "temporary", "temp", "alter"}))
                m_creates = false;
            break;
        default:
            break;
        }
        if (isOneOf(word, {"class", "package"}))
            m_kind = Kind::Class;
    }

    void announceCreated()
    {
        m_creates = false;
        m_announced = true;
    }

    bool isPrefix(QByteArrayView word) const
    {
        return (m_language == ScriptLanguage::Basic && isOneOf(word, {"get", "let", "set"}))
            || (m_language == ScriptLanguage::Sql && isOneOf(word, {"if", "not", "exists"}));
    }

    ScriptLanguage m_language;
    Kind m_kind = Kind::Function;
    bool m_announced = false;
    bool m_creates = false;
    bool m_ends = false;
};

/// Functions of languages with braces: "function name", "name(…) {", "name = (…) =>", and classes.
class BracedSymbols
{
public:
    BracedSymbols(ScriptLanguage language, qsizetype offset, DocumentSymbols &symbols)
        : m_language(language), m_offset(offset), m_symbols(symbols)
    {}

    void take(const ScriptToken &token)
    {
        if (token.isWord())
            takeWord(token);
        else if (token.kind == ScriptToken::Kind::Sign)
            takeSign(token);
        else
            forget();
    }

private:
    struct Name {
        QByteArrayView text;
        qsizetype position = -1;

        bool isNone() const { return position < 0; }
    };
    /// An open parenthesis: the word before it, and what the value is assigned to.
    struct Open {
        Name called;
        Name assigned;
    };

    void takeWord(const ScriptToken &token)
    {
        m_wasEqual = false;
        const Name name{token.text, token.position};
        if (m_announced) {
            m_announced = false;
            m_word = {};
            m_closed = {};
            m_ignoreNext = m_kind == Kind::Function;
            // Where a class is only mentioned, no body follows.
            if (m_kind == Kind::Class)
                m_class = name;
            else
                add(m_kind, name);
            return;
        }
        if (isOneOf(token.text, {"function"})) {
            m_announced = m_language != ScriptLanguage::C;
            m_kind = Kind::Function;
            return;
        }
        if (isOneOf(token.text, {"class", "interface", "trait", "namespace", "struct"})) {
            m_announced = m_language != ScriptLanguage::JavaScript || token.text == "class";
            m_kind = Kind::Class;
            return;
        }
        // What may stand between the parameters and the body.
        if (!m_closed.called.isNone() || !m_closed.assigned.isNone()) {
            if (isOneOf(token.text, {"throws"}))
                m_inReturnType = true;
            else if (!m_inReturnType && !isOneOf(token.text, {"const", "noexcept", "override", "final"}))
                m_closed = {};
            if (!m_closed.called.isNone() || !m_closed.assigned.isNone())
                return;
        }
        m_word = name;
    }

    void takeSign(const ScriptToken &token)
    {
        const char sign = token.text.front();
        if (sign == ';' || sign == '*' || sign == '&' || sign == '=' || sign == ')')
            m_class = {};
        if (sign != '=' && sign != '>')
            m_wasEqual = false;
        switch (sign) {
        case '(':
            if (m_announced && !m_assigned.isNone() && m_kind == Kind::Function) {
                // A function without a name of its own has that of what it is assigned to.
                add(Kind::Function, m_assigned);
                m_ignoreNext = true;
            }
            m_announced = false;
            // No program is nested deeper; what is beyond has no names.
            if (m_open.size() < deepest)
                m_open.push_back({m_ignoreNext ? Name() : m_word, m_ignoreNext ? Name() : m_assigned});
            else
                ++m_deeper;
            m_ignoreNext = false;
            m_word = {};
            m_assigned = {};
            m_closed = {};
            return;
        case ')':
            m_closed = {};
            if (m_deeper > 0) {
                --m_deeper;
            } else if (!m_open.empty()) {
                m_closed = m_open.back();
                m_open.pop_back();
            }
            m_word = {};
            m_assigned = {};
            m_inReturnType = false;
            return;
        case '{':
            if (!m_class.isNone())
                add(Kind::Class, m_class);
            m_class = {};
            if (!m_closed.called.isNone() && !isStatement(m_closed.called.text))
                add(Kind::Function, m_closed.called);
            forget();
            return;
        case '>':
            if (m_wasEqual && m_language == ScriptLanguage::JavaScript) {
                const Name &name = m_closed.assigned.isNone() ? m_assigned : m_closed.assigned;
                if (!name.isNone())
                    add(Kind::Function, name);
            }
            forget();
            return;
        case '=':
            if (!m_closed.called.isNone() || !m_closed.assigned.isNone()) {
                m_wasEqual = true;
                return;
            }
            m_wasEqual = !m_assigned.isNone();
            if (!m_wasEqual)
                m_assigned = m_word;
            m_word = {};
            return;
        case ':':
            if (!m_closed.called.isNone()) {
                if (m_language == ScriptLanguage::C) {
                    // A constructor's list of members.
                    add(Kind::Function, m_closed.called);
                    forget();
                }
                m_inReturnType = m_language == ScriptLanguage::Php;
                return;
            }
            if (m_language == ScriptLanguage::JavaScript)
                m_assigned = m_word;
            m_word = {};
            return;
        case ',':
        case '.':
            if (m_inReturnType)
                return;
            break;
        case '*':
        case '&':
        case '?':
        case '|':
        case '\\':
            if (m_announced || m_inReturnType)
                return;
            break;
        default:
            break;
        }
        forget();
    }

    static bool isStatement(QByteArrayView word)
    {
        return isOneOf(word,
                       {"if", "for", "foreach", "while", "switch", "catch", "with", "elseif", "return", "do", "else",
                        "function", "declare", "match", "synchronized", "using", "lock"});
    }

    void forget()
    {
        m_word = {};
        m_assigned = {};
        m_closed = {};
        m_announced = false;
        m_wasEqual = false;
        m_inReturnType = false;
        m_ignoreNext = false;
    }

    void add(Kind kind, const Name &name)
    {
        addSymbol(m_symbols, {kind, symbolName(name.text), m_offset + name.position});
    }

    ScriptLanguage m_language;
    qsizetype m_offset;
    DocumentSymbols &m_symbols;
    static constexpr std::size_t deepest = 1000;
    std::vector<Open> m_open;
    qsizetype m_deeper = 0;
    Name m_word;
    Name m_assigned;
    Open m_closed;
    Name m_class;
    Kind m_kind = Kind::Function;
    bool m_announced = false;
    bool m_wasEqual = false;
    bool m_inReturnType = false;
    bool m_ignoreNext = false;
};

} // namespace

DocumentSymbols scriptSymbols(QByteArrayView text, ScriptLanguage language, qsizetype offset)
{
    DocumentSymbols symbols;
    ScriptTokens tokens(text, syntaxOf(language));
    const bool hasBraces =
        language == ScriptLanguage::JavaScript || language == ScriptLanguage::Php || language == ScriptLanguage::C;
    AnnouncedSymbols announced(language);
    BracedSymbols braced(language, offset, symbols);
    for (ScriptToken token = tokens.next(); token.kind != ScriptToken::Kind::End; token = tokens.next()) {
        DocumentSymbol::Kind kind = DocumentSymbol::Kind::Function;
        if (hasBraces)
            braced.take(token);
        else if (announced.isName(token, kind))
            addSymbol(symbols, {kind, symbolName(token.text), offset + token.position});
    }
    return symbols;
}

} // namespace zephira

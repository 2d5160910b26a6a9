// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/procedurallexer.h"

#include "syntax/codewalk.h"
#include "syntax/numbers.h"

#include <algorithm>

namespace zephira {

namespace {

/// The number of string delimiters that a packed state can distinguish.
constexpr std::size_t mostDelimiters = 64;

/// Marks a dictionary word that begins a longer entry ("End" of "End Sub").
constexpr Byte beginsEntry = 0x80;

/// The directives that may be followed by a file name in angle brackets.
enum Directive : Byte { Plain = 1, NamesFile = 2 };
constexpr QByteArrayView fileDirectives[] = {"include", "include_next", "import", "embed"};

/// Keywords that are values: a slash after them is a division.
constexpr QByteArrayView valueKeywords[] = {"this", "super", "null", "true", "false", "undefined", "NaN", "Infinity"};

constexpr SyntaxStyle styleOf(TokenKind kind)
{
    switch (kind) {
    case TokenKind::Keyword:
        return SyntaxStyle::Keyword;
    case TokenKind::Operator:
        return SyntaxStyle::Operator;
    case TokenKind::Scope:
        return SyntaxStyle::ScopeKeyword;
    case TokenKind::String:
        return SyntaxStyle::String;
    case TokenKind::LineComment:
    case TokenKind::LongComment:
        return SyntaxStyle::Comment;
    case TokenKind::None:
        break;
    }
    return SyntaxStyle::Text;
}

} // namespace

ProceduralLexer::ProceduralLexer(const LanguageDefinition &definition)
    : m_dialect(definition.dialect)
    , m_words(definition.language.CaseSensitive)
    , m_directives(true)
    , m_symbols(definition.language.CaseSensitive)
    , m_escape(definition.language.EscapeChar.toUtf8())
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const Byte b = static_cast<Byte>(byte);
        m_isWord[byte] =
            isLetter(b) || isDigit(b) || b == '_' || b >= 0x80 || (b == '$' && has(m_dialect, Dialect::DollarInWords));
    }

    const CodeMaxLanguage &language = definition.language;
    const QByteArrayList begins = entriesOf(language.MultiLineComments1);
    const QByteArrayList ends = entriesOf(language.MultiLineComments2);
    for (qsizetype i = 0; i < std::min(begins.size(), ends.size()); ++i) {
        addEntry(begins[i], TokenKind::LongComment, m_commentEnds.size());
        m_commentEnds.push_back(ends[i]);
    }
    const QByteArrayList delimiters = entriesOf(language.StringDelims);
    for (const QByteArray &delimiter : delimiters) {
        if (m_delimiters.size() == mostDelimiters)
            break;
        addEntry(delimiter, TokenKind::String, m_delimiters.size());
        m_delimiters.push_back(delimiter);
    }
    // A word that is in two lists keeps the kind that is added first.
    addWords(language.SingleLineComments, TokenKind::LineComment);
    addWords(language.ScopeKeywords1, TokenKind::Scope);
    addWords(language.ScopeKeywords2, TokenKind::Scope);
    addWords(language.Keywords, TokenKind::Keyword);
    addWords(language.Operators, TokenKind::Operator);
    m_symbols.finish(m_isWord);

    // Words that begin longer entries are in the dictionary too, whatever they are by themselves.
    for (const Symbol &symbol : m_symbols.symbols()) {
        const auto *begin = reinterpret_cast<const Byte *>(symbol.bytes.constData());
        if (isWordStart(*begin)) {
            const Byte *end = std::find_if_not(begin, begin + symbol.size(), [this](Byte b) { return m_isWord[b]; });
            m_words.merge(viewOf(begin, end), beginsEntry);
        }
    }
    classifyBytes();
}

void ProceduralLexer::addWords(const QString &list, TokenKind kind)
{
    const QByteArrayList entries = entriesOf(list);
    for (const QByteArray &entry : entries)
        addEntry(entry, kind);
}

void ProceduralLexer::addEntry(const QByteArray &entry, TokenKind kind, std::size_t index)
{
    const bool word = std::ranges::all_of(entry, [this](char c) { return m_isWord[static_cast<Byte>(c)]; });
    if (word && kind != TokenKind::LongComment && kind != TokenKind::String)
        m_words.add(entry, static_cast<Byte>(kind));
    else
        m_symbols.add({entry, kind, static_cast<quint16>(index)});
    if (has(m_dialect, Dialect::Preprocessor) && entry.startsWith('#') && entry.size() > 1) {
        const QByteArray name = entry.sliced(1);
        const bool file = std::ranges::find(fileDirectives, name) != std::end(fileDirectives);
        m_directives.add(name, file ? NamesFile : Plain);
    }
}

void ProceduralLexer::classifyBytes()
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const Byte b = static_cast<Byte>(byte);
        ByteClass &entry = m_class[byte];
        if (isDigit(b))
            entry = ByteClass::Digit;
        else if (m_isWord[b] && (b < 0x80 || !m_symbols.startsWith(b)))
            entry = ByteClass::Word;
        else if (m_symbols.isPlainOperator(b))
            entry = ByteClass::Operator;
        else if (m_symbols.startsWith(b))
            entry = ByteClass::Symbol;
    }
    m_class['.'] = ByteClass::Point;
    constexpr struct {
        Dialect dialect;
        std::string_view bytes;
    } special[] = {
        {Dialect::Templates, "`{}"},      {Dialect::TextBlocks, "\""},  {Dialect::RegularExpressions, "/"},
        {Dialect::Preprocessor, "#"},     {Dialect::DateLiterals, "#"}, {Dialect::DollarNumbers, "#$"},
        {Dialect::AmpersandNumbers, "&"}, {Dialect::PhpClosing, "?"},   {Dialect::HereDocuments, "<"},
    };
    for (const auto &row : special) {
        for (const char byte : has(m_dialect, row.dialect) ? row.bytes : std::string_view())
            m_class[static_cast<Byte>(byte)] = ByteClass::Special;
    }
}

const Byte *ProceduralLexer::paint(const StyleCanvas &canvas, const Byte *begin, const Byte *end, bool lineStart,
                                   quint32 &state) const
{
    Walk walk{canvas, begin, end, lineStart, CodeState::unpacked(state)};
    while (walk.p < end && !walk.stopped) {
        switch (walk.state.kind) {
        case CodeState::Kind::Code:
            paintCode(walk);
            break;
        case CodeState::Kind::Comment:
            paintComment(walk);
            break;
        case CodeState::Kind::String:
            paintString(walk);
            break;
        case CodeState::Kind::Template:
            paintTemplate(walk);
            break;
        case CodeState::Kind::HereDocument:
            paintHereDocument(walk);
            break;
        case CodeState::Kind::RawString:
            paintRawString(walk);
            break;
        case CodeState::Kind::LineComment:
            paintLineComment(walk);
            break;
        case CodeState::Kind::TextBlock:
            paintTextBlock(walk);
            break;
        }
    }
    walk.flush();
    state = walk.state.packed();
    return walk.p;
}

quint32 ProceduralLexer::paintLine(const StyleCanvas &canvas, const LineBytes &line, quint32 state) const
{
    // A delimiter that would end an embedded block ends nothing here; it is an ordinary operator.
    const Byte *p = paint(canvas, line.begin, line.end, true, state);
    while (p < line.end) {
        canvas.paint(p, p + 1, SyntaxStyle::Operator);
        p = paint(canvas, p + 1, line.end, false, state);
    }
    state = behindLineEnd(state);
    canvas.paint(line.end, line.next, lineEndStyle(state));
    return state;
}

void ProceduralLexer::paintCode(Walk &walk) const
{
    while (walk.p < walk.end && !walk.stopped && walk.state.kind == CodeState::Kind::Code) {
        switch (m_class[*walk.p]) {
        case ByteClass::Plain:
            do
                walk.operandBefore &= isBlank(*walk.p++);
            while (walk.p < walk.end && m_class[*walk.p] == ByteClass::Plain);
            break;
        case ByteClass::Word:
            paintWord(walk);
            break;
        case ByteClass::Digit:
            paintNumber(walk, numberEnd(walk.p, walk.end, m_dialect));
            break;
        case ByteClass::Point: {
            const bool behindName = walk.p > walk.begin && (m_isWord[walk.p[-1]] || walk.p[-1] == '.');
            if (walk.room() > 1 && isDigit(walk.p[1]) && !behindName)
                paintNumber(walk, numberEnd(walk.p, walk.end, m_dialect));
            else
                paintSymbol(walk);
            break;
        }
        case ByteClass::Operator: {
            const Byte *q = walk.p + 1;
            while (q < walk.end && m_class[*q] == ByteClass::Operator)
                ++q;
            walk.operandBefore = q[-1] == ')' || q[-1] == ']';
            walk.take(q, SyntaxStyle::Operator);
            break;
        }
        case ByteClass::Symbol:
            paintSymbol(walk);
            break;
        case ByteClass::Special:
            if (!paintSpecial(walk))
                paintSymbol(walk);
            break;
        }
    }
}

void ProceduralLexer::paintWord(Walk &walk) const
{
    const Byte *q = walk.p;
    quint32 hash = 0;
    do
        hash = m_words.step(hash, *q++);
    while (q < walk.end && m_isWord[*q]);

    const QByteArrayView word = viewOf(walk.p, q);
    const Byte found = m_words.find(walk.p, static_cast<std::size_t>(q - walk.p), hash);
    if ((found & beginsEntry) && m_symbols.find(walk.p, walk.end))
        return paintSymbol(walk);

    const TokenKind kind = static_cast<TokenKind>(found & ~beginsEntry);
    walk.operandBefore =
        kind != TokenKind::Keyword || std::ranges::find(valueKeywords, word) != std::end(valueKeywords);
    if (kind == TokenKind::None) {
        if (has(m_dialect, Dialect::RawStrings) && q < walk.end && *q == '"' && openRawString(walk, q))
            return;
        walk.p = q;
        return;
    }
    if (kind == TokenKind::LineComment)
        walk.state.kind = CodeState::Kind::LineComment;
    walk.take(q, styleOf(kind));
}

void ProceduralLexer::paintNumber(Walk &walk, const Byte *numberEnd) const
{
    walk.take(numberEnd, SyntaxStyle::Number);
    walk.operandBefore = true;
}

void ProceduralLexer::paintSymbol(Walk &walk) const
{
    const Symbol *symbol = m_symbols.find(walk.p, walk.end);
    if (!symbol) {
        if (m_isWord[*walk.p])
            return paintWord(walk);
        walk.operandBefore = false;
        ++walk.p;
        return;
    }
    switch (symbol->kind) {
    case TokenKind::LongComment:
        walk.state.kind = CodeState::Kind::Comment;
        walk.state.pair = symbol->index;
        break;
    case TokenKind::LineComment:
        walk.state.kind = CodeState::Kind::LineComment;
        break;
    case TokenKind::String:
        return openString(walk, symbol->index, symbol->size());
    default:
        walk.operandBefore = false;
        break;
    }
    const bool comment = styleOf(symbol->kind) == SyntaxStyle::Comment;
    walk.take(walk.p + (comment ? symbol->size() : symbol->styledSize()), styleOf(symbol->kind));
    if (symbol->kind == TokenKind::Keyword && symbol->bytes == "$")
        paintVariable(walk);
}

/// The word after "$" is a name, even if it is a keyword elsewhere.
void ProceduralLexer::paintVariable(Walk &walk) const
{
    while (walk.p < walk.end && m_isWord[*walk.p])
        ++walk.p;
    walk.operandBefore = true;
}

bool ProceduralLexer::paintSpecial(Walk &walk) const
{
    switch (*walk.p) {
    case '`':
        walk.state.kind = CodeState::Kind::Template;
        walk.take(walk.p + 1, SyntaxStyle::String);
        return true;
    case '{':
    case '}':
        if (walk.state.openSubstitutions() == 0 || walk.state.countBrace(*walk.p == '{'))
            return false;
        walk.state.kind = CodeState::Kind::Template;
        walk.take(walk.p + 1, SyntaxStyle::Operator);
        return true;
    case '"':
        if (!standsAt(walk.p, walk.end, "\"\"\""))
            return false;
        walk.state.kind = CodeState::Kind::TextBlock;
        walk.take(walk.p + 3, SyntaxStyle::String);
        return true;
    case '/':
        return paintRegularExpression(walk);
    case '<':
        return openHereDocument(walk);
    case '?':
        walk.stopped = standsAt(walk.p, walk.end, "?>");
        return walk.stopped;
    default:
        break;
    }
    if (*walk.p == '#' && has(m_dialect, Dialect::Preprocessor))
        return paintDirective(walk);
    const Byte *number = signedNumberEnd(walk.p, walk.end, m_dialect);
    if (number == walk.p)
        return false;
    paintNumber(walk, number);
    return true;
}

/// "#  include <x>": only blanks precede the "#", and some may follow it.
bool ProceduralLexer::paintDirective(Walk &walk) const
{
    if (!walk.lineStart || !std::all_of(walk.begin, walk.p, isBlank))
        return false;
    const Byte *word = std::find_if_not(walk.p + 1, walk.end, isBlank);
    const Byte *q = std::find_if_not(word, walk.end, [this](Byte b) { return m_isWord[b]; });
    const Byte found = m_directives.find(viewOf(word, q));
    if (found == 0)
        return false;
    walk.take(q, SyntaxStyle::Keyword);
    const Byte *name = std::find_if_not(q, walk.end, isBlank);
    if (found == NamesFile && name < walk.end && *name == '<') {
        const Byte *close = std::find(name, walk.end, Byte{'>'});
        walk.p = name;
        walk.take(close < walk.end ? close + 1 : close, SyntaxStyle::String);
    }
    return true;
}

bool ProceduralLexer::paintRegularExpression(Walk &walk) const
{
    if (walk.operandBefore || walk.slashesDivide || walk.room() < 2 || walk.p[1] == '/' || walk.p[1] == '*')
        return false;
    bool inSet = false;
    for (const Byte *q = walk.p + 1; q < walk.end; ++q) {
        if (*q == '\\')
            ++q;
        else if (*q == '[')
            inSet = true;
        else if (*q == ']')
            inSet = false;
        else if (*q == '/' && !inSet) {
            walk.take(std::find_if_not(q + 1, walk.end, isLetter), SyntaxStyle::String);
            walk.operandBefore = true;
            return true;
        }
    }
    // Searching for the end again at every slash would take quadratic time in a long line.
    walk.slashesDivide = true;
    return false;
}

} // namespace zephira

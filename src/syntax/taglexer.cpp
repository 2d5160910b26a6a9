// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/taglexer.h"

#include "syntax/numbers.h"
#include "syntax/tagnames.h"
#include "syntax/tagwalk.h"

#include <algorithm>

namespace zephira {

namespace {

/// The number of comment delimiter pairs that a line state can distinguish.
constexpr qsizetype mostCommentPairs = 8;

bool is(Byte byte, Byte property)
{
    return (tagBytes[byte] & property) != 0;
}

} // namespace

TagLexer::Names::Names(const QString &list, bool caseSensitive) : words(caseSensitive), all(list.isEmpty())
{
    const QByteArrayList entries = entriesOf(list);
    for (const QByteArray &entry : entries) {
        if (entry.endsWith('*'))
            beginnings.push_back(caseSensitive ? entry.chopped(1) : entry.chopped(1).toLower());
        else
            words.add(entry, knownName);
    }
}

Byte TagLexer::Names::find(const Byte *begin, const Byte *end, quint32 hash) const
{
    const Byte found = words.find(begin, static_cast<std::size_t>(end - begin), hash);
    if (found != 0 || all)
        return std::max<Byte>(found, knownName);
    const bool fold = words.step(0, 'A') != 'A';
    const bool begins = std::ranges::any_of(beginnings, [=](const QByteArray &beginning) {
        return end - begin > beginning.size()
            && std::equal(beginning.begin(), beginning.end(), begin, [fold](char own, Byte other) {
                   return static_cast<Byte>(own) == (fold && isLetter(other) ? (other | 32) : other);
               });
    });
    return begins ? knownName : Byte{0};
}

TagLexer::TagLexer(const LanguageDefinition &definition)
    : m_elements(definition.language.TagElementNames, definition.language.CaseSensitive)
    , m_attributes(definition.language.TagAttributeNames, definition.language.CaseSensitive)
    , m_entities({}, true)
{
    const CodeMaxLanguage &language = definition.language;
    const QByteArrayList entities = entriesOf(language.TagEntities);
    for (QByteArray entity : entities) {
        entity.replace('&', "").replace(';', "");
        m_entities.words.add(entity, knownName);
    }
    const QByteArrayList begins = entriesOf(language.MultiLineComments1);
    const QByteArrayList ends = entriesOf(language.MultiLineComments2);
    for (qsizetype i = 0; i < std::min({begins.size(), ends.size(), mostCommentPairs}); ++i) {
        m_commentBegins.push_back(begins[i]);
        m_commentEnds.push_back(ends[i]);
        m_stopsText[static_cast<Byte>(begins[i].front())] = true;
    }
    std::size_t quote = 0;
    const QByteArrayList delimiters = entriesOf(language.StringDelims);
    for (const QByteArray &delimiter : delimiters) {
        if (delimiter.size() == 1 && quote < m_quotes.size())
            m_quotes[quote++] = static_cast<Byte>(delimiter.front());
    }
    m_stopsText['<'] = m_stopsText['&'] = true;
    if (has(definition.dialect, Dialect::Html)) {
        m_embedded = std::make_unique<const Embedded>();
        m_elements.words.merge("script", scriptElement);
        m_elements.words.merge("style", styleElement);
        m_attributes.words.merge("type", languageAttribute);
        m_attributes.words.merge("language", languageAttribute);
    }
}

quint32 TagLexer::paintLine(const StyleCanvas &canvas, const LineBytes &line, quint32 bits) const
{
    Walk walk{canvas, line, TagState::unpacked(bits)};
    TagState &state = walk.state;
    if (!m_embedded) {
        state.server = state.code = Code::None;
        if (state.mode == Mode::Block)
            state.enter(Mode::Text);
    }
    while (walk.p < walk.end) {
        if (state.server != Code::None) {
            paintServerBlock(walk);
            continue;
        }
        switch (state.mode) {
        case Mode::Text:
            paintText(walk);
            break;
        case Mode::Tag:
            paintTag(walk);
            break;
        case Mode::Comment:
            paintComment(walk);
            break;
        case Mode::Declaration:
            paintDeclaration(walk);
            break;
        case Mode::Subset:
            paintSubset(walk);
            break;
        case Mode::Cdata:
            paintCdata(walk);
            break;
        case Mode::Block:
            paintBlock(walk);
            break;
        }
    }
    // A line end inside a server block belongs to the block and has no effect on the outer text.
    if (state.server != Code::None) {
        if (state.serverDetail != serverComment)
            state.serverDetail = lexerOf(state.server)->behindLineEnd(state.serverDetail);
    } else if (state.mode == Mode::Block) {
        if (const CodeLexer *lexer = lexerOf(state.code))
            state.detail = lexer->behindLineEnd(state.detail);
    } else if (state.value == Value::Unquoted) {
        state.value = Value::None;
        state.behindEquals = state.namesLanguage = false;
    }
    canvas.paint(line.end, line.next, lineEndStyle(state));
    return state.packed();
}

SyntaxStyle TagLexer::lineEndStyle(const TagState &state) const
{
    if (state.server != Code::None) {
        return state.serverDetail == serverComment ? SyntaxStyle::Comment
                                                   : lexerOf(state.server)->lineEndStyle(state.serverDetail);
    }
    switch (state.mode) {
    case Mode::Comment:
        return SyntaxStyle::Comment;
    case Mode::Tag:
    case Mode::Declaration:
        return state.value == Value::None ? SyntaxStyle::TagText : SyntaxStyle::String;
    case Mode::Subset:
        return SyntaxStyle::TagText;
    case Mode::Block: {
        const CodeLexer *lexer = lexerOf(state.code);
        return lexer ? lexer->lineEndStyle(state.detail) : SyntaxStyle::Text;
    }
    case Mode::Text:
    case Mode::Cdata:
        break;
    }
    return SyntaxStyle::Text;
}

void TagLexer::paintText(Walk &walk) const
{
    while (walk.p < walk.end && walk.state.mode == Mode::Text && walk.state.server == Code::None) {
        const Byte *q = walk.p;
        while (q < walk.end && !m_stopsText[*q])
            ++q;
        walk.take(q, SyntaxStyle::Text);
        if (q == walk.end)
            return;
        if (openComment(walk))
            continue;
        if (*q == '<')
            openMarkup(walk);
        else if (*q == '&')
            paintEntity(walk);
        else
            walk.take(1, SyntaxStyle::Text);
    }
}

/// "&name;" with a known name, "&#160;" or "&#xA0;".
void TagLexer::paintEntity(Walk &walk) const
{
    const Byte *q = walk.p + 1;
    bool known = false;
    if (walk.byteAt(1) == '#') {
        const bool hex = (walk.byteAt(2) | 32) == 'x';
        const Byte *digits = walk.p + (hex ? 3 : 2);
        q = hex ? std::find_if_not(digits, walk.end, isHexDigit) : std::find_if_not(digits, walk.end, isDigit);
        known = q > digits;
    } else {
        quint32 hash = 0;
        for (; q < walk.end && (isLetter(*q) || isDigit(*q)); ++q)
            hash = m_entities.words.step(hash, *q);
        known = m_entities.words.find(walk.p + 1, static_cast<std::size_t>(q - walk.p - 1), hash) != 0;
    }
    known = known && q < walk.end && *q == ';';
    walk.take(known ? q + 1 : q, known ? SyntaxStyle::TagEntity : SyntaxStyle::Text);
}

bool TagLexer::openComment(Walk &walk) const
{
    const auto begin = std::ranges::find_if(m_commentBegins, [&walk](const QByteArray &sign) { return walk.at(sign); });
    if (begin == m_commentBegins.end())
        return false;
    const bool htmlComment = m_embedded && *begin == "<!--";
    if (htmlComment && walk.byteAt(4) == '#') {
        const Byte *word = walk.p + 5;
        const Byte *q = std::find_if_not(word, walk.end, isLetter);
        if (isServerDirective(viewOf(word, q))) {
            walk.take(word, SyntaxStyle::Operator);
            walk.take(q, SyntaxStyle::TagElement);
            walk.state.enter(Mode::Tag);
            walk.state.tag = TagKind::Directive;
            return true;
        }
    }
    // "<!-->" and "<!--->" are complete comments, as in browsers.
    if (htmlComment && (walk.byteAt(4) == '>' || (walk.byteAt(4) == '-' && walk.byteAt(5) == '>'))) {
        walk.take(walk.byteAt(4) == '>' ? 5 : 6, SyntaxStyle::Comment);
        return true;
    }
    walk.take(begin->size(), SyntaxStyle::Comment);
    walk.state.enter(Mode::Comment);
    walk.state.pair = static_cast<Byte>(begin - m_commentBegins.begin());
    walk.state.nesting = htmlComment && walk.byteAt(0) == '-' ? 1 : 0;
    return true;
}

/// A comment that begins with three dashes is a server comment, which can be nested; all others end at the first
/// closing delimiter.
void TagLexer::paintComment(Walk &walk) const
{
    TagState &state = walk.state;
    if (state.pair >= m_commentEnds.size())
        return walk.leave();
    const QByteArray &ending = m_commentEnds[state.pair];
    const Byte *q = walk.p;
    if (state.nesting > 0) {
        for (; q < walk.end && state.nesting > 0; ++q) {
            if (standsAt(q, walk.end, "<!--")) {
                state.nesting = std::min<Byte>(deepestComment, static_cast<Byte>(state.nesting + 1));
                q += 3;
            } else if (standsAt(q, walk.end, "-->")) {
                state.nesting = static_cast<Byte>(state.nesting - 1);
                q += 2;
            }
        }
        walk.take(q, SyntaxStyle::Comment);
        if (state.nesting == 0)
            walk.leave();
        return;
    }
    q = findText(walk.p, walk.end, ending);
    const bool closed = q < walk.end;
    walk.take(closed ? q + ending.size() : q, SyntaxStyle::Comment);
    if (closed)
        walk.leave();
}

void TagLexer::openMarkup(Walk &walk) const
{
    const Byte *p = walk.p;
    const Byte next = walk.byteAt(1);
    if (opensServerBlock(p, walk.end)) {
        openServerBlock(walk);
    } else if (is(next, tagbyte::beginsName)) {
        openTag(walk, p + 1, TagKind::Opening);
    } else if (next == '/' && (is(walk.byteAt(2), tagbyte::beginsName) || opensServerBlock(p + 2, walk.end))) {
        openTag(walk, p + 2, TagKind::Closing);
    } else if (walk.at("<![CDATA[")) {
        walk.take(9, SyntaxStyle::Operator);
        walk.state.enter(Mode::Cdata);
    } else if (next == '!' && (isLetter(walk.byteAt(2)) || walk.byteAt(2) == '[')) {
        openDeclaration(walk);
    } else if (next == '?' && is(walk.byteAt(2), tagbyte::beginsName)) {
        openTag(walk, p + 2, TagKind::Instruction);
    } else {
        walk.take(1, SyntaxStyle::Text);
    }
}

void TagLexer::openDeclaration(Walk &walk) const
{
    walk.take(walk.byteAt(2) == '[' ? 3 : 2, SyntaxStyle::Operator);
    walk.take(std::find_if_not(walk.p, walk.end, isLetter), SyntaxStyle::TagElement);
    walk.state.enter(Mode::Declaration);
}

void TagLexer::paintDeclaration(Walk &walk) const
{
    TagState &state = walk.state;
    if (state.value != Value::None) {
        const Byte *q = std::find(walk.p, walk.end, quote(state.value));
        if (q < walk.end)
            state.value = Value::None;
        return walk.take(q < walk.end ? q + 1 : q, SyntaxStyle::String);
    }
    const Byte byte = *walk.p;
    if (byte == quote(Value::FirstQuote) || byte == quote(Value::SecondQuote)) {
        state.value = byte == quote(Value::FirstQuote) ? Value::FirstQuote : Value::SecondQuote;
        walk.take(1, SyntaxStyle::String);
    } else if (byte == '>') {
        walk.take(1, SyntaxStyle::Operator);
        walk.leave();
    } else if (byte == '<') {
        // The declaration was never closed.
        walk.leave();
    } else if (byte == '[' && !state.inSubset) {
        walk.take(1, SyntaxStyle::Operator);
        state.inSubset = true;
        state.enter(Mode::Subset);
    } else if (is(byte, tagbyte::inName) || byte == '#') {
        const Byte *q = std::find_if_not(walk.p + 1, walk.end, [](Byte b) { return is(b, tagbyte::inName); });
        walk.take(q, isDeclarationWord(viewOf(walk.p, q)) ? SyntaxStyle::Keyword : SyntaxStyle::TagText);
    } else {
        walk.take(1, is(byte, tagbyte::blank) ? SyntaxStyle::TagText : SyntaxStyle::Operator);
    }
}

void TagLexer::paintSubset(Walk &walk) const
{
    const Byte *p = walk.p;
    const Byte *q = std::find_if(p, walk.end, [](Byte b) { return b == '<' || b == '%' || b == ']'; });
    if (q > p)
        return walk.take(q, SyntaxStyle::TagText);
    if (*p == ']') {
        walk.take(1, SyntaxStyle::Operator);
        walk.state.inSubset = false;
        walk.state.enter(Mode::Declaration);
    } else if (*p == '%') {
        q = std::find_if_not(p + 1, walk.end, [](Byte b) { return is(b, tagbyte::inName); });
        const bool entity = q > p + 1 && q < walk.end && *q == ';';
        walk.take(entity ? q + 1 : q, entity ? SyntaxStyle::TagEntity : SyntaxStyle::TagText);
    } else if (!openComment(walk)) {
        if (walk.byteAt(1) == '!' && (isLetter(walk.byteAt(2)) || walk.byteAt(2) == '['))
            openDeclaration(walk);
        else if (walk.byteAt(1) == '?' && is(walk.byteAt(2), tagbyte::beginsName))
            openTag(walk, p + 2, TagKind::Instruction);
        else
            walk.take(1, SyntaxStyle::TagText);
    }
}

void TagLexer::paintCdata(Walk &walk) const
{
    const Byte *q = findText(walk.p, walk.end, "]]>");
    walk.take(q, SyntaxStyle::Text);
    if (q < walk.end) {
        walk.take(3, SyntaxStyle::Operator);
        walk.leave();
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/foldlevels.h"

#include "syntax/bytescan.h"
#include "syntax/linelexer.h"
#include "syntax/numbers.h"

#include <algorithm>

namespace zephira {

namespace {

enum Scope : Byte { Opens = 1, Closes = 2 };

/// The elements whose end tag is mandatory, and the three that enclose a document. Others could open folds that are
/// never closed.
constexpr QByteArrayView foldedElements[] = {
    "html",     "head",     "body",     "a",        "abbr",       "address",  "applet",  "article", "aside",
    "audio",    "b",        "bdi",      "bdo",      "blockquote", "button",   "canvas",  "caption", "center",
    "cite",     "code",     "data",     "datalist", "del",        "details",  "dfn",     "dialog",  "dir",
    "div",      "dl",       "em",       "fieldset", "figcaption", "figure",   "font",    "footer",  "form",
    "frameset", "h1",       "h2",       "h3",       "h4",         "h5",       "h6",      "header",  "hgroup",
    "i",        "iframe",   "ins",      "kbd",      "label",      "legend",   "main",    "map",     "mark",
    "math",     "menu",     "meter",    "nav",      "noframes",   "noscript", "object",  "ol",      "output",
    "picture",  "pre",      "progress", "q",        "s",          "samp",     "script",  "search",  "section",
    "select",   "small",    "span",     "strong",   "style",      "sub",      "summary", "sup",     "svg",
    "table",    "template", "textarea", "time",     "title",      "tt",       "u",       "ul",      "var",
    "video"};

/// Whether text of this style can change the depth.
constexpr bool isFolding(Byte style)
{
    return style == static_cast<Byte>(SyntaxStyle::ScopeKeyword) || style == static_cast<Byte>(SyntaxStyle::TagElement)
        || style == static_cast<Byte>(SyntaxStyle::Operator);
}

bool isWordByte(Byte byte)
{
    return isLetter(byte) || isDigit(byte) || byte == '_' || byte >= 0x80;
}

int change(Byte scope)
{
    return scope == Opens ? 1 : scope == Closes ? -1 : 0;
}

} // namespace

FoldRules::FoldRules(const LanguageDefinition &definition)
    : m_scopes(definition.language.CaseSensitive)
    , m_elements(definition.language.CaseSensitive)
    , m_everyElement(definition.language.Style == 1 && !has(definition.dialect, Dialect::Html))
{
    const auto addAll = [this](const QString &list, Scope scope) {
        const QByteArrayList entries = entriesOf(list);
        for (const QByteArray &entry : entries)
            m_scopes.add(entry, scope);
    };
    addAll(definition.language.ScopeKeywords1, Opens);
    addAll(definition.language.ScopeKeywords2, Closes);
    if (has(definition.dialect, Dialect::Html)) {
        // The block delimiters of embedded scripts and style sheets. The words of server blocks are part of the
        // language itself.
        m_scopes.add("{", Opens);
        m_scopes.add("}", Closes);
        addAll(vbScriptDefinition().language.ScopeKeywords1, Opens);
        addAll(vbScriptDefinition().language.ScopeKeywords2, Closes);
        for (const QByteArrayView element : foldedElements)
            m_elements.add(element, Opens);
    }
}

FoldLine FoldRules::fold(QByteArrayView line, std::span<const unsigned char> styles, FoldState &state) const
{
    const auto *begin = reinterpret_cast<const Byte *>(line.data());
    const Byte *end = begin + std::min(line.size(), static_cast<qsizetype>(styles.size()));
    const Byte *textEnd = end;
    while (textEnd > begin && (textEnd[-1] == '\n' || textEnd[-1] == '\r'))
        --textEnd;

    FoldLine result{state.level, false, std::all_of(begin, textEnd, isBlank)};
    int depth = state.level;
    for (const Byte *p = begin; p < textEnd;) {
        const Byte style = styles[static_cast<std::size_t>(p - begin)];
        if (!isFolding(style)) {
            ++p;
            continue;
        }
        const Byte *q = p;
        while (q < textEnd && styles[static_cast<std::size_t>(q - begin)] == style)
            ++q;
        if (style == static_cast<Byte>(SyntaxStyle::TagElement)) {
            const bool closing = p - begin > 1 && p[-1] == '/' && p[-2] == '<';
            const bool opening = p > begin && p[-1] == '<';
            if ((opening || closing) && (m_everyElement || m_elements.find(viewOf(p, q)) != 0))
                depth += opening ? 1 : -1;
        } else if (style == static_cast<Byte>(SyntaxStyle::Operator)) {
            depth -= m_everyElement && standsAt(p, q, "/>") ? 1 : 0;
        } else if (isWordByte(*p)) {
            depth += change(m_scopes.find(viewOf(p, q)));
        } else {
            for (const Byte *sign = p; sign < q; ++sign)
                depth += change(m_scopes.find(viewOf(sign, sign + 1)));
        }
        depth = std::max(depth, 0);
        p = q;
    }

    // A comment continues on the next line if the line end is also part of it.
    const bool comment =
        end > textEnd && styles[static_cast<std::size_t>(end - begin) - 1] == static_cast<Byte>(SyntaxStyle::Comment);
    depth += static_cast<int>(comment) - static_cast<int>(state.inComment);
    depth = std::max(depth, 0);
    result.header = depth > result.level;
    state = {depth, comment};
    return result;
}

} // namespace zephira

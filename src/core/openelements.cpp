// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/openelements.h"

#include "core/textparts.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <span>

namespace zephira {

namespace {

using Text = OpenElements::Text;
using Names = std::span<const QByteArrayView>;

/// The distance between the places at which is remembered what was read, in bytes.
constexpr qsizetype interval = 65536;
/// How many bytes are read behind a place before it is decided what begins there.
constexpr qsizetype lookAhead = 16;
/// How far outwards an element that a start tag ends is looked for.
constexpr int mostLevels = 64;

constexpr QByteArrayView emptyElements[] = {"area",  "base",  "basefont", "bgsound", "br",    "col",
                                            "embed", "frame", "hr",       "img",     "input", "keygen",
                                            "link",  "meta",  "param",    "source",  "track", "wbr"};

/// Elements whose content is no markup.
constexpr QByteArrayView rawElements[] = {"iframe", "noembed",  "noframes", "script",
                                          "style",  "textarea", "title",    "xmp"};

/// Nothing outside of these is ended by a tag inside.
constexpr QByteArrayView fences[] = {"body", "button", "caption", "html",    "marquee",
                                     "math", "object", "svg",     "template"};

constexpr QByteArrayView blocks[] = {"address", "article", "aside",   "blockquote", "center", "details", "dialog",
                                     "dir",     "div",     "dl",      "fieldset",   "figure", "footer",  "form",
                                     "h1",      "h2",      "h3",      "h4",         "h5",     "h6",      "header",
                                     "hgroup",  "hr",      "main",    "menu",       "nav",    "ol",      "p",
                                     "pre",     "search",  "section", "table",      "ul"};
constexpr QByteArrayView paragraph[] = {"p"};
constexpr QByteArrayView cells[] = {"td", "th"};
constexpr QByteArrayView rows[] = {"tr"};
constexpr QByteArrayView rowsAndCells[] = {"td", "th", "tr"};
constexpr QByteArrayView groups[] = {"tbody", "tfoot", "thead"};
constexpr QByteArrayView partsOfTable[] = {"caption", "colgroup", "tbody", "td", "tfoot", "th", "thead", "tr"};
constexpr QByteArrayView table[] = {"table"};
constexpr QByteArrayView tableAndCells[] = {"table", "td", "th"};
constexpr QByteArrayView item[] = {"li"};
constexpr QByteArrayView lists[] = {"dir", "menu", "ol", "table", "td", "th", "ul"};
constexpr QByteArrayView terms[] = {"dd", "dt"};
constexpr QByteArrayView termLists[] = {"dl", "table", "td", "th"};
constexpr QByteArrayView option[] = {"option"};
constexpr QByteArrayView optionGroup[] = {"optgroup"};
constexpr QByteArrayView options[] = {"optgroup", "option"};
constexpr QByteArrayView choices[] = {"datalist", "select"};
constexpr QByteArrayView ruby[] = {"rp", "rt"};
constexpr QByteArrayView rubyText[] = {"ruby"};
constexpr QByteArrayView head[] = {"head"};
constexpr QByteArrayView body[] = {"body", "frameset"};
constexpr QByteArrayView root[] = {"html"};

/// A start tag of one of the first elements ends the second ones that are open within the third ones.
struct ImpliedEnd {
    Names starting;
    Names ended;
    Names within;
};

constexpr ImpliedEnd impliedEnds[] = {
    {blocks, paragraph, tableAndCells},
    {item, item, lists},
    {terms, terms, termLists},
    {cells, cells, table},
    {rows, rowsAndCells, table},
    {groups, partsOfTable, table},
    {option, option, choices},
    {optionGroup, options, choices},
    {ruby, ruby, rubyText},
    {body, head, root},
};

bool isOneOf(QByteArrayView name, Names names)
{
    return std::ranges::find(names, name) != names.end();
}

qsizetype sizeOf(const Text &text)
{
    return text[0].size() + text[1].size();
}

char charAt(const Text &text, qsizetype at)
{
    if (at >= sizeOf(text))
        return 0;
    return at < text[0].size() ? text[0][at] : text[1][at - text[0].size()];
}

/// The position of the next such byte at or after `from`; the text's end if there is none.
qsizetype find(const Text &text, char wanted, qsizetype from)
{
    qsizetype begin = 0;
    for (const QByteArrayView &piece : text) {
        const qsizetype first = std::max<qsizetype>(0, from - begin);
        if (first < piece.size()) {
            const void *found = std::memchr(piece.data() + first, wanted, static_cast<size_t>(piece.size() - first));
            if (found)
                return begin + (static_cast<const char *>(found) - piece.data());
        }
        begin += piece.size();
    }
    return begin;
}

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Whether the text has these lower-case bytes at a position, in any case.
bool hasAt(const Text &text, qsizetype at, QByteArrayView wanted)
{
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        if (lowered(charAt(text, at + i)) != wanted[i])
            return false;
    }
    return true;
}

/// The position behind the next such bytes; the text's end if there are none.
qsizetype behind(const Text &text, QByteArrayView wanted, qsizetype from)
{
    const qsizetype size = sizeOf(text);
    for (qsizetype at = find(text, wanted.front(), from); at < size; at = find(text, wanted.front(), at + 1)) {
        if (hasAt(text, at, wanted))
            return at + wanted.size();
    }
    return size;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

bool beginsName(char c)
{
    return isAsciiLetter(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

/// The position behind the server code or instruction that begins there; the position itself if none does.
qsizetype behindCode(const Text &text, qsizetype at)
{
    if (hasAt(text, at, "<%"))
        return behind(text, "%>", at + 2);
    if (hasAt(text, at, "<?"))
        return behind(text, "?>", at + 2);
    return at;
}

/// The same for comments, sections of characters and declarations as well.
qsizetype behindNoTag(const Text &text, qsizetype at)
{
    if (hasAt(text, at, "<!--"))
        return behind(text, "-->", at + 2);
    if (hasAt(text, at, "<![cdata["))
        return behind(text, "]]>", at + 9);
    if (hasAt(text, at, "<!"))
        return behind(text, ">", at + 2);
    return behindCode(text, at);
}

} // namespace

void OpenElements::changedFrom(qsizetype position)
{
    // What follows decides what a bracket begins, and whether the content of a script ends.
    const qsizetype sure = std::max<qsizetype>(0, position - lookAhead);
    if (m_at > sure)
        goBackTo(sure);
}

/// Continues at the last remembered place before a position.
void OpenElements::goBackTo(qsizetype position)
{
    const auto behindIt = std::ranges::upper_bound(m_marks, position, {}, &Mark::at);
    const Mark mark = behindIt == m_marks.begin() ? Mark() : *std::prev(behindIt);
    m_at = mark.at;
    m_top = mark.top;
    m_nodes.resize(static_cast<size_t>(mark.nodes));
    // The marks behind the place refer to elements that are entered again.
    m_marks.erase(behindIt, m_marks.end());
    std::ranges::fill(m_open, 0);
    for (int node = m_top; node >= 0; node = m_nodes[static_cast<size_t>(node)].parent)
        ++m_open[static_cast<size_t>(m_nodes[static_cast<size_t>(node)].name)];
}

void OpenElements::rememberPlace()
{
    const qsizetype last = m_marks.empty() ? 0 : m_marks.back().at;
    if (m_at >= last + interval)
        m_marks.push_back({m_at, m_top, static_cast<qsizetype>(m_nodes.size())});
}

int OpenElements::numberOf(const QByteArray &name)
{
    const auto known = m_numbers.constFind(name);
    if (known != m_numbers.constEnd())
        return *known;
    const int number = static_cast<int>(m_names.size());
    m_names.push_back(name);
    m_open.push_back(0);
    m_numbers.insert(name, number);
    return number;
}

ElementTag OpenElements::describe(int node) const
{
    const Node &element = m_nodes[static_cast<size_t>(node)];
    return {element.begin, element.tagEnd, m_names[static_cast<size_t>(element.name)]};
}

/// Goes on to the next tag that begins before the limit, which may lie behind a text that has become shorter. What it passes
/// has been read.
std::optional<OpenElements::Tag> OpenElements::nextTag(const Text &text, qsizetype limit)
{
    // Behind the text there is no place to go on to.
    limit = std::min(limit, sizeOf(text));
    while (m_at < limit) {
        const qsizetype open = find(text, '<', m_at);
        m_at = std::min(open, std::max(m_at, limit));
        if (open >= limit)
            return {};
        const bool isEnd = charAt(text, open + 1) == '/';
        if (const qsizetype end = behindNoTag(text, open); end > open) {
            m_at = end;
        } else if (beginsName(charAt(text, open + (isEnd ? 2 : 1)))) {
            Tag tag;
            tag.begin = open;
            tag.isEnd = isEnd;
            readTag(text, tag);
            return tag;
        } else {
            m_at = open + 1;
        }
    }
    return {};
}

/// A tag that another one begins in, outside of a value, is half typed and ends there.
void OpenElements::readTag(const Text &text, Tag &tag) const
{
    const qsizetype size = sizeOf(text);
    qsizetype at = tag.begin + (tag.isEnd ? 2 : 1);
    for (; at < size; ++at) {
        const char c = charAt(text, at);
        if (isBlank(c) || c == '>' || c == '/' || c == '<')
            break;
        tag.name += m_rules == MarkupRules::Html ? lowered(c) : c;
    }
    bool isClosed = false;
    char before = 0;
    while (at < size) {
        const char c = charAt(text, at);
        if (c == '>') {
            ++at;
            break;
        }
        if (c == '<') {
            const qsizetype end = behindCode(text, at);
            if (end == at)
                break;
            at = end;
            continue;
        }
        isClosed = c == '/';
        // A quote begins a value only behind the sign.
        if ((c == '"' || c == '\'') && before == '=')
            at = std::min(find(text, c, at + 1), size - 1);
        if (!isBlank(c))
            before = c;
        ++at;
    }
    tag.end = at;
    tag.isEmpty = m_rules == MarkupRules::Xml ? isClosed : isOneOf(tag.name, emptyElements);
    // In drawings and formulas a slash ends an element.
    if (m_rules == MarkupRules::Html && isClosed) {
        for (const QByteArray &foreign : {QByteArray("svg"), QByteArray("math")}) {
            const auto number = m_numbers.constFind(foreign);
            tag.isEmpty = tag.isEmpty || tag.name == foreign
                || (number != m_numbers.constEnd() && m_open[static_cast<size_t>(*number)] > 0);
        }
    }
}

/// Ends the elements inside a node, and the node itself.
void OpenElements::popTo(int node)
{
    while (m_top >= node) {
        const Node &top = m_nodes[static_cast<size_t>(m_top)];
        --m_open[static_cast<size_t>(top.name)];
        m_top = top.parent;
    }
    m_lowest = std::min(m_lowest, m_top);
}

void OpenElements::endImplied(const QByteArray &name)
{
    for (const ImpliedEnd &rule : impliedEnds) {
        if (!isOneOf(name, rule.starting))
            continue;
        int outermost = -1;
        int level = 0;
        for (int node = m_top; node >= 0 && level < mostLevels; node = m_nodes[static_cast<size_t>(node)].parent) {
            const QByteArray &open = m_names[static_cast<size_t>(m_nodes[static_cast<size_t>(node)].name)];
            if (isOneOf(open, rule.ended))
                outermost = node;
            else if (isOneOf(open, rule.within) || isOneOf(open, fences))
                break;
            ++level;
        }
        if (outermost >= 0)
            popTo(outermost);
    }
}

void OpenElements::enter(const Text &text, const Tag &tag)
{
    if (m_rules == MarkupRules::Html)
        endImplied(tag.name);
    m_at = tag.end;
    if (tag.isEmpty)
        return;
    const int name = numberOf(tag.name);
    m_nodes.push_back({tag.begin, tag.end, m_top, name});
    m_top = static_cast<int>(m_nodes.size()) - 1;
    ++m_open[static_cast<size_t>(name)];
    if (m_rules == MarkupRules::Html && isOneOf(tag.name, rawElements)) {
        const QByteArray end = "</" + tag.name;
        const qsizetype behindIt = behind(text, end, tag.end);
        m_at = hasAt(text, behindIt - end.size(), end) && behindIt - end.size() >= tag.end ? behindIt - end.size()
                                                                                           : behindIt;
    }
}

void OpenElements::leave(const Tag &tag)
{
    m_at = tag.end;
    const auto number = m_numbers.constFind(tag.name);
    if (number == m_numbers.constEnd() || m_open[static_cast<size_t>(*number)] == 0)
        return;
    int node = m_top;
    while (m_nodes[static_cast<size_t>(node)].name != *number)
        node = m_nodes[static_cast<size_t>(node)].parent;
    m_ended = node;
    popTo(node);
}

std::optional<std::vector<ElementTag>> OpenElements::around(const Text &text, qsizetype position, qsizetype budget)
{
    if (m_at > position)
        goBackTo(position);
    const qsizetype enough = m_at > std::numeric_limits<qsizetype>::max() - budget ? budget : m_at + budget;
    std::optional<ElementTag> atTag;
    while (m_at < position) {
        if (m_at >= enough)
            return {};
        const std::optional<Tag> tag = nextTag(text, position);
        if (!tag)
            break;
        const bool isInTag = tag->end > position;
        if (tag->isEnd && isInTag)
            break;
        if (tag->isEnd)
            leave(*tag);
        else
            enter(text, *tag);
        if (tag->isEmpty && isInTag)
            atTag = {tag->begin, tag->end, tag->name};
        rememberPlace();
    }
    std::vector<ElementTag> elements;
    if (atTag)
        elements.push_back(*atTag);
    for (int node = m_top; node >= 0; node = m_nodes[static_cast<size_t>(node)].parent)
        elements.push_back(describe(node));
    std::ranges::reverse(elements);
    return elements;
}

qsizetype OpenElements::endOf(const Text &text, const ElementTag &element)
{
    const qsizetype size = sizeOf(text);
    around(text, element.begin + 1, std::numeric_limits<qsizetype>::max());
    const int node = m_top;
    if (node < 0 || m_nodes[static_cast<size_t>(node)].begin != element.begin)
        return element.tagEnd; // It has no content.
    while (const std::optional<Tag> tag = nextTag(text, size)) {
        m_ended = -1;
        m_lowest = m_top;
        if (tag->isEnd)
            leave(*tag);
        else
            enter(text, *tag);
        rememberPlace();
        if (m_lowest < node)
            return m_ended == node ? tag->end : tag->begin;
    }
    return size;
}

} // namespace zephira

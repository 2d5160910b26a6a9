// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/markupplace.h"

#include "completion/completiontext.h"
#include "completion/styleplace.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace zephira {

namespace {

constexpr std::array<QByteArrayView, 19> voidElements{
    "area",  "base",   "basefont", "bgsound", "br",    "col",    "embed",  "frame", "hr", "img",
    "input", "keygen", "link",     "meta",    "param", "source", "spacer", "track", "wbr"};
/// Their content isn't tags.
constexpr std::array<QByteArrayView, 7> rawElements{"script", "style",   "textarea", "title",
                                                    "xmp",    "listing", "plaintext"};
constexpr std::array<QByteArrayView, 11> fileAttributes{
    "href", "src", "action", "data", "poster", "background", "cite", "longdesc", "formaction", "manifest", "lowsrc"};
/// Their values are ids of elements.
constexpr std::array<QByteArrayView, 12> idAttributes{
    "for",           "form",      "list",          "headers",    "aria-labelledby", "aria-describedby",
    "aria-controls", "aria-owns", "popovertarget", "commandfor", "aria-details",    "aria-activedescendant"};
constexpr qsizetype longestEntity = 33;
/// A page isn't nested more deeply, but for one that never closes anything.
constexpr qsizetype deepest = 500;

template<typename List>
bool contains(const List &list, QByteArrayView name)
{
    return std::ranges::find(list, name) != std::end(list);
}

constexpr bool endsAttributeName(char c)
{
    return isBlankOrBreak(c) || c == '=' || c == '>' || c == '/' || c == '<' || c == '"' || c == '\'';
}

constexpr bool isTagNameByte(char c)
{
    return isNameByte(c) || c == ':' || c == '.';
}

/// Where a character reference begins that the text ends in: behind its "&". -1 if it ends in none.
qsizetype entityStart(QByteArrayView text)
{
    const qsizetype last = std::max<qsizetype>(0, text.size() - longestEntity);
    for (qsizetype at = text.size(); at > last; --at) {
        const char c = text[at - 1];
        if (c == '&')
            return at;
        if (!isAsciiLetter(c) && !isAsciiDigit(c) && c != '#')
            return -1;
    }
    return -1;
}

/// Walks from tag to tag, up to the end of the text.
class MarkupScan
{
public:
    MarkupScan(QByteArrayView text, bool isXml) : m_text(text), m_isXml(isXml) {}

    CompletionPlace place()
    {
        while (!m_found)
            step();
        return *std::move(m_found);
    }

private:
    struct Tag {
        QByteArray name;
        QByteArrayList attributes;
    };

    void found(CompletionPlace place) { m_found = std::move(place); }
    void nothing() { m_found = CompletionPlace{}; }
    void step();
    /// Goes behind the next `end`, or finds that there is nothing to complete.
    void skipBehind(QByteArrayView end, qsizetype from);
    void readClosingTag();
    void readTag();
    void readAttributes(Tag &tag);
    void readAttribute(Tag &tag, bool isBehindBlank);
    /// Reads a value and returns false if the tag ends there, because its quote is missing.
    bool readValue(const Tag &tag, const QByteArray &attribute);
    bool skipServerBlock();
    void endTag(const Tag &tag, bool isEmpty);
    void readRawContent(const QByteArray &name);
    void textPlace(qsizetype start, PlaceKind otherwise);
    void valuePlace(const Tag &tag, const QByteArray &attribute, qsizetype start, bool quoted);
    QByteArray nameAt(qsizetype start, qsizetype end) const;
    QByteArrayList openElements() const;
    bool atEnd() const { return m_at >= m_text.size(); }

    QByteArrayView m_text;
    bool m_isXml;
    qsizetype m_at = 0;
    bool m_isTagOver = false;
    QByteArrayList m_open;
    std::optional<CompletionPlace> m_found;
};

QByteArray MarkupScan::nameAt(qsizetype start, qsizetype end) const
{
    const QByteArrayView name = m_text.sliced(start, end - start);
    return m_isXml ? name.toByteArray() : lowered(name);
}

QByteArrayList MarkupScan::openElements() const
{
    QByteArrayList names;
    for (auto name = m_open.crbegin(); name != m_open.crend(); ++name) {
        if (!names.contains(*name))
            names.append(*name);
    }
    return names;
}

void MarkupScan::skipBehind(QByteArrayView end, qsizetype from)
{
    const qsizetype found = m_text.indexOf(end, std::min(from, m_text.size()));
    if (found < 0)
        nothing();
    else
        m_at = found + end.size();
}

void MarkupScan::textPlace(qsizetype start, PlaceKind otherwise)
{
    const qsizetype entity = entityStart(m_text.sliced(start));
    if (entity >= 0)
        found({.kind = PlaceKind::Entity, .start = start + entity});
    else
        found({.kind = otherwise, .start = std::max(start, nameStart(m_text, m_text.size()))});
}

void MarkupScan::step()
{
    const qsizetype open = m_text.indexOf('<', m_at);
    if (open < 0) {
        textPlace(m_at, PlaceKind::Words);
        return;
    }
    m_at = open;
    if (skipServerBlock())
        return;
    if (open + 1 == m_text.size()) {
        found({.kind = PlaceKind::Tag, .start = open + 1});
        return;
    }
    const char c = m_text[open + 1];
    if (standsAt(m_text, open, "<!--"))
        skipBehind("-->", open + 4);
    else if (standsAt(m_text, open, "<![CDATA["))
        skipBehind("]]>", open);
    else if (c == '!')
        skipBehind(">", open);
    else if (c == '/')
        readClosingTag();
    else if (isAsciiLetter(c) || (m_isXml && isNameByte(c) && !isAsciiDigit(c) && c != '-'))
        readTag();
    else
        ++m_at;
}

/// Goes behind a server block that begins here.
bool MarkupScan::skipServerBlock()
{
    const qsizetype end = behindServerBlock(m_text, m_at);
    if (end < 0)
        return false;
    const QByteArrayView block = m_text.sliced(m_at, end - m_at);
    if (block.size() < 4 || !block.endsWith(block[1] == '%' ? "%>" : "?>"))
        nothing();
    m_at = end;
    return true;
}

void MarkupScan::readClosingTag()
{
    const qsizetype start = m_at + 2;
    qsizetype end = start;
    while (end < m_text.size() && isTagNameByte(m_text[end]))
        ++end;
    if (end == m_text.size()) {
        found({.kind = PlaceKind::ClosingTag, .start = start, .open = openElements()});
        return;
    }
    // What is open inside ends with it. A closing tag without a partner closes nothing.
    const QByteArray name = nameAt(start, end);
    if (const qsizetype partner = m_open.lastIndexOf(name); partner >= 0)
        m_open.resize(partner);
    while (end < m_text.size() && m_text[end] != '>' && m_text[end] != '<')
        ++end;
    if (end == m_text.size())
        nothing();
    m_at = end < m_text.size() && m_text[end] == '>' ? end + 1 : end;
}

void MarkupScan::readTag()
{
    const qsizetype start = m_at + 1;
    qsizetype end = start;
    while (end < m_text.size() && isTagNameByte(m_text[end]))
        ++end;
    if (end == m_text.size()) {
        found({.kind = PlaceKind::Tag, .start = start, .open = openElements()});
        return;
    }
    Tag tag{nameAt(start, end), {}};
    m_at = end;
    m_isTagOver = false;
    while (!m_found && !m_isTagOver)
        readAttributes(tag);
}

void MarkupScan::readAttributes(Tag &tag)
{
    const qsizetype before = m_at;
    while (!atEnd() && isBlankOrBreak(m_text[m_at]))
        ++m_at;
    const bool isBehindBlank = m_at > before;
    if (atEnd()) {
        if (isBehindBlank)
            found({.kind = PlaceKind::Attribute, .start = m_at, .tag = tag.name, .taken = tag.attributes});
        else
            nothing();
        return;
    }
    switch (m_text[m_at]) {
    case '>':
        ++m_at;
        endTag(tag, m_text[m_at - 2] == '/');
        return;
    case '<':
        // Either a server block among the attributes, or the next tag: then the ">" of this one is missing.
        if (!skipServerBlock())
            endTag(tag, false);
        return;
    case '/':
    case '=':
    case '"':
    case '\'':
        ++m_at;
        return;
    default:
        readAttribute(tag, isBehindBlank);
    }
}

void MarkupScan::readAttribute(Tag &tag, bool isBehindBlank)
{
    const qsizetype start = m_at;
    while (!atEnd() && !endsAttributeName(m_text[m_at]))
        ++m_at;
    if (atEnd()) {
        if (isBehindBlank)
            found({.kind = PlaceKind::Attribute, .start = start, .tag = tag.name, .taken = tag.attributes});
        else
            nothing();
        return;
    }
    const QByteArray name = nameAt(start, m_at);
    tag.attributes.append(name);
    qsizetype next = m_at;
    while (next < m_text.size() && isBlankOrBreak(m_text[next]))
        ++next;
    if (next == m_text.size() || m_text[next] != '=')
        return;
    m_at = next + 1;
    while (!atEnd() && isBlankOrBreak(m_text[m_at]))
        ++m_at;
    if (!readValue(tag, name))
        endTag(tag, false);
}

bool MarkupScan::readValue(const Tag &tag, const QByteArray &attribute)
{
    const bool quoted = !atEnd() && (m_text[m_at] == '"' || m_text[m_at] == '\'');
    const char quote = quoted ? m_text[m_at++] : ' ';
    const qsizetype start = m_at;
    qsizetype lineEnd = -1;
    while (!atEnd()) {
        const char c = m_text[m_at];
        if (quoted ? c == quote : isBlankOrBreak(c) || c == '>') {
            m_at += quoted ? 1 : 0;
            return true;
        }
        if (c == '<' && skipServerBlock()) {
            if (m_found)
                return true;
            continue;
        }
        // A tag on a later line than the quote: the closing one is missing.
        if (c == '<' && lineEnd >= 0) {
            m_at = lineEnd;
            return false;
        }
        if (c == '\n' && lineEnd < 0)
            lineEnd = m_at;
        ++m_at;
    }
    valuePlace(tag, attribute, start, quoted);
    return true;
}

void MarkupScan::valuePlace(const Tag &tag, const QByteArray &attribute, qsizetype start, bool quoted)
{
    const QByteArrayView value = m_text.sliced(start);
    CompletionPlace place{
        .kind = PlaceKind::Value, .start = m_text.size(), .tag = tag.name, .attribute = attribute, .quoted = quoted};
    if (m_isXml && attribute != "class" && attribute != "style" && !isFileAttribute(attribute)) {
        nothing();
        return;
    }
    if (attribute == "style") {
        place = stylePlace(value, true);
        place.start += start;
        found(std::move(place));
        return;
    }
    if (attribute.startsWith("on") && attribute.size() > 2) {
        nothing();
        return;
    }
    if (isFileAttribute(attribute)) {
        const bool isAnchor = value.startsWith('#');
        const qsizetype name = isAnchor ? 1 : value.lastIndexOf('/') + 1;
        place.kind = isAnchor ? PlaceKind::Id : PlaceKind::File;
        place.start = start + name;
        place.folder = value.first(isAnchor ? 0 : name).toByteArray();
        found(std::move(place));
        return;
    }
    if (const qsizetype entity = entityStart(value); entity >= 0) {
        found({.kind = PlaceKind::Entity, .start = start + entity});
        return;
    }
    qsizetype word = value.size();
    while (word > 0 && !isBlankOrBreak(value[word - 1]))
        --word;
    place.start = start + word;
    place.taken = completeWords(value);
    if (attribute == "class")
        place.kind = PlaceKind::Class;
    else if (contains(idAttributes, attribute))
        place.kind = PlaceKind::Id;
    else if (attribute == "usemap" && value.startsWith('#'))
        place = {.kind = PlaceKind::Id, .start = start + 1, .quoted = quoted};
    found(std::move(place));
}

void MarkupScan::endTag(const Tag &tag, bool isEmpty)
{
    m_isTagOver = true;
    if (m_found)
        return;
    const bool isOpen = m_isXml ? !isEmpty : !contains(voidElements, tag.name);
    if (isOpen && m_open.size() < deepest)
        m_open.append(tag.name);
    if (isOpen && !m_isXml) {
        if (contains(rawElements, tag.name))
            readRawContent(tag.name);
    }
}

/// Goes to the closing tag of an element whose content isn't tags.
void MarkupScan::readRawContent(const QByteArray &name)
{
    const qsizetype start = m_at;
    const qsizetype end = findIgnoringCase(m_text, "</" + name, start);
    if (end >= 0 && end + 2 + name.size() < m_text.size()) {
        m_at = end;
        return;
    }
    // The text ends in the element, perhaps with the beginning of its closing tag.
    const QByteArrayView content = m_text.sliced(start);
    const qsizetype closing = content.lastIndexOf("</");
    if (closing >= 0 && standsAt(name, 0, content.sliced(closing + 2))) {
        found({.kind = PlaceKind::ClosingTag, .start = start + closing + 2, .open = {name}});
    } else if (name == "style") {
        CompletionPlace place = stylePlace(content, false);
        place.start += start;
        found(std::move(place));
    } else if (name == "script") {
        found({.kind = PlaceKind::Words, .start = std::max(start, nameStart(m_text, m_text.size()))});
    } else {
        textPlace(start, PlaceKind::Words);
    }
}

} // namespace

CompletionPlace markupPlace(QByteArrayView before, bool isXml)
{
    return MarkupScan(before, isXml).place();
}

bool isVoidElement(QByteArrayView name)
{
    return contains(voidElements, name);
}

bool isFileAttribute(QByteArrayView attribute)
{
    return contains(fileAttributes, attribute);
}

} // namespace zephira

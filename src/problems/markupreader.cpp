// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/markupreader.h"

#include "completion/completiontext.h"
#include "problems/servercode.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

constexpr std::array<QByteArrayView, 7> rawElements{"script", "style", "textarea", "title", "noembed", "xmp", "iframe"};

bool isRaw(QByteArrayView key)
{
    return std::ranges::find(rawElements, key) != rawElements.end();
}

bool endsName(char c)
{
    return isBlankOrBreak(c) || c == '>' || c == '/' || c == '=' || c == '<';
}

} // namespace

bool isDynamic(QByteArrayView part)
{
    return part.contains(CoveredText::cover);
}

const MarkupAttribute *MarkupTag::attribute(QByteArrayView lowerName) const
{
    const auto found = std::ranges::find_if(attributes, [&](const MarkupAttribute &each) {
        return each.name.size() == lowerName.size() && standsAt(each.name, 0, lowerName);
    });
    return found == attributes.end() ? nullptr : &*found;
}

/// The place behind a comment, a document type or the like, whose "<!" begins at `at`.
qsizetype MarkupReader::behindDeclaration(qsizetype at)
{
    const QByteArrayView rest = m_text.sliced(at);
    if (rest.startsWith("<!--")) {
        if (rest.startsWith("<!-->"))
            return at + 5;
        const qsizetype end = rest.indexOf("-->", 2);
        if (end < 0)
            m_openComment = at;
        return end < 0 ? m_text.size() : at + end + 3;
    }
    const bool isData = rest.startsWith("<![CDATA[");
    const qsizetype end = isData ? rest.indexOf("]]>") : rest.indexOf('>');
    return end < 0 ? m_text.size() : at + end + (isData ? 3 : 1);
}

bool MarkupReader::next(MarkupTag &tag)
{
    while (m_at < m_text.size()) {
        const qsizetype found = m_text.indexOf('<', m_at);
        if (found < 0 || found + 1 >= m_text.size())
            break;
        const char c = m_text[found + 1];
        const bool isEnd = c == '/' && found + 2 < m_text.size() && isAsciiLetter(m_text[found + 2]);
        if (c == '!') {
            m_at = behindDeclaration(found);
        } else if (isEnd || isAsciiLetter(c)) {
            tag = {};
            tag.start = found;
            tag.isEnd = isEnd;
            readTag(tag, found + (isEnd ? 2 : 1));
            m_at = tag.end;
            if (!isEnd && !tag.isOpen && isRaw(tag.key))
                readRawText(tag);
            return true;
        } else {
            m_at = found + 1;
        }
    }
    m_at = m_text.size();
    return false;
}

void MarkupReader::readTag(MarkupTag &tag, qsizetype nameAt)
{
    qsizetype at = nameAt;
    while (at < m_text.size() && !endsName(m_text[at]))
        ++at;
    tag.name = m_text.sliced(nameAt, at - nameAt);
    tag.key = lowered(tag.name);
    tag.isDynamic = isDynamic(tag.name);
    while (at < m_text.size()) {
        const char c = m_text[at];
        if (c == '>') {
            tag.end = at + 1;
            return;
        }
        if (c == '<')
            break;
        if (c == '/' || isBlankOrBreak(c)) {
            tag.endsItself = c == '/' && at + 1 < m_text.size() && m_text[at + 1] == '>';
            ++at;
        } else {
            at = readAttribute(tag, at);
        }
    }
    tag.isOpen = true;
    tag.end = at;
}

/// Reads what begins at `at` and returns the place behind it.
qsizetype MarkupReader::readAttribute(MarkupTag &tag, qsizetype at) const
{
    const auto skipBlanks = [this](qsizetype from) {
        while (from < m_text.size() && isBlankOrBreak(m_text[from]))
            ++from;
        return from;
    };
    const qsizetype nameAt = at;
    // An equals sign at the beginning is part of the name.
    for (++at; at < m_text.size() && !endsName(m_text[at]);)
        ++at;
    MarkupAttribute attribute{m_text.sliced(nameAt, at - nameAt)};
    tag.isDynamic = tag.isDynamic || isDynamic(attribute.name);
    const qsizetype equals = skipBlanks(at);
    if (equals < m_text.size() && m_text[equals] == '=') {
        attribute.hasValue = true;
        qsizetype start = skipBlanks(equals + 1);
        qsizetype end = start;
        const char c = start < m_text.size() ? m_text[start] : '\0';
        if (c == '"' || c == '\'') {
            attribute.quote = c;
            ++start;
            end = m_text.indexOf(c, start);
            end = end < 0 ? m_text.size() : end;
            at = std::min(end + 1, m_text.size());
        } else {
            while (end < m_text.size() && !isBlankOrBreak(m_text[end]) && m_text[end] != '>')
                ++end;
            at = end;
        }
        attribute.value = m_text.sliced(start, end - start);
    }
    tag.attributes.push_back(attribute);
    return at;
}

void MarkupReader::readRawText(MarkupTag &tag)
{
    qsizetype end = m_text.size();
    for (qsizetype at = m_text.indexOf("</", m_at); at >= 0; at = m_text.indexOf("</", at + 2)) {
        const qsizetype behind = at + 2 + tag.key.size();
        if (standsAt(m_text, at + 2, tag.key) && (behind >= m_text.size() || endsName(m_text[behind]))) {
            end = at;
            break;
        }
    }
    tag.rawText = m_text.sliced(m_at, end - m_at);
    m_at = end;
}

} // namespace zephira

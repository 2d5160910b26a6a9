// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pagetokens.h"

#include "web/designer/pageroundtrip.h"
#include "web/designer/tagparts.h"

#include <algorithm>
#include <span>

namespace zephira {

namespace {

constexpr QStringView voidElements[] = {
    u"area", u"base",  u"basefont", u"bgsound", u"br",   u"col",   u"embed",  u"frame", u"hr",
    u"img",  u"input", u"keygen",   u"link",    u"meta", u"param", u"source", u"track", u"wbr",
};
constexpr QStringView rawElements[] = {u"script", u"style", u"xmp", u"iframe", u"noembed", u"noframes", u"noscript"};
constexpr QStringView plainElements[] = {u"textarea", u"title"};

/// The first character of a key tells the kind, because a text may look like a tag.
constexpr char16_t startKey = 1;
constexpr char16_t endKey = 2;
constexpr char16_t commentKey = 3;
/// Divides the parts of a tag's key.
constexpr char16_t division = 4;

bool isOneOf(QStringView name, std::span<const QStringView> names)
{
    return std::ranges::find(names, name) != names.end();
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

/// Reads the tokens of one page. Each read…() begins at m_at and moves m_at past what it has read.
class TokenReader
{
public:
    TokenReader(QStringView page, TokenKeys &keys) : m_page(page), m_keys(keys) {}

    std::vector<PageToken> read()
    {
        constexpr qsizetype charactersInToken = 4;
        m_tokens.reserve(static_cast<size_t>(m_page.size() / charactersInToken));
        while (m_at < m_page.size()) {
            readText(nextTag(), References::InText);
            if (m_at < m_page.size())
                readBracket();
        }
        return std::move(m_tokens);
    }

private:
    QChar charAt(qsizetype place) const { return place < m_page.size() ? m_page[place] : QChar(); }
    qsizetype behind(QStringView text, qsizetype from) const
    {
        const qsizetype found = from < m_page.size() ? m_page.indexOf(text, from) : -1;
        return found < 0 ? m_page.size() : found + text.size();
    }

    /// Where the next tag, comment or declaration begins, or the end of the page.
    qsizetype nextTag() const
    {
        for (qsizetype open = m_page.indexOf(u'<', m_at); open >= 0; open = m_page.indexOf(u'<', open + 1)) {
            const QChar next = charAt(open + 1);
            if (isLetter(next) || next == u'!' || next == u'?' || (next == u'/' && open + 2 < m_page.size()))
                return open;
        }
        return m_page.size();
    }

    void add(TokenKind kind, qsizetype end, QStringView key)
    {
        m_tokens.push_back({m_at, end, m_keys.keyOf(key), kind});
        m_at = end;
    }

    void readText(qsizetype end, References references)
    {
        while (m_at < end) {
            const bool isBlank = isTagBlank(m_page[m_at]);
            qsizetype place = m_at;
            bool isPlain = true;
            while (place < end && isTagBlank(m_page[place]) == isBlank) {
                isPlain = isPlain && m_page[place] != u'&' && m_page[place] != u'\r';
                ++place;
            }
            const QStringView text = m_page.sliced(m_at, place - m_at);
            m_key.clear();
            if (!isPlain)
                appendRead(text, references, m_key);
            add(TokenKind::Text, place, isPlain ? text : QStringView(m_key));
            m_tokens.back().references = references;
        }
    }

    void readBracket()
    {
        const QChar next = charAt(m_at + 1);
        if (isLetter(next) || (next == u'/' && isLetter(charAt(m_at + 2))))
            readTagOrMark();
        else if (m_page.sliced(m_at).startsWith(u"<!--"))
            readComment();
        else
            addComment(behind(u">", m_at), m_page.sliced(m_at, behind(u">", m_at) - m_at));
    }

    void addComment(qsizetype end, QStringView content)
    {
        m_key = QChar(commentKey);
        appendRead(content, References::None, m_key);
        add(TokenKind::Comment, end, m_key);
    }

    void readComment()
    {
        constexpr qsizetype opening = 4;
        constexpr qsizetype closing = 3;
        const qsizetype end = behind(u"-->", m_at + opening);
        const qsizetype contentEnd = std::max(m_at + opening, m_page.first(end).endsWith(u"-->") ? end - closing : end);
        addComment(end, m_page.sliced(m_at + opening, contentEnd - m_at - opening));
    }

    void readTagOrMark()
    {
        const TagParts tag = readTag(m_page, m_at);
        m_name = tag.name(m_page).toString().toLower();
        if (m_name == markElement && !tag.isEnd) {
            const QStringView mark = tag.attributes.empty() ? QStringView() : tag.attributes.front().value(m_page);
            addComment(behind(u"</zephira-mark>", tag.end), mark);
            return;
        }
        m_key = QChar(tag.isEnd ? endKey : startKey) + m_name;
        if (tag.isEnd) {
            add(TokenKind::EndTag, tag.end, m_key);
            return;
        }
        for (const TagAttribute &attribute : tag.attributes) {
            if (attribute.isRepeated)
                continue;
            m_key += QChar(division);
            m_key += attribute.name(m_page).toString().toLower();
            m_key += QChar(division);
            appendRead(attribute.value(m_page), References::InValue, m_key);
        }
        add(TokenKind::StartTag, tag.end, m_key);
        m_tokens.back().isVoid = isOneOf(m_name, voidElements);
        readTagless();
    }

    /// The content of an element that can't contain tags.
    void readTagless()
    {
        if (m_name == u"plaintext")
            readText(m_page.size(), References::None);
        else if (isOneOf(m_name, rawElements))
            readText(endTag(), References::None);
        else if (isOneOf(m_name, plainElements))
            readText(endTag(), References::InText);
    }

    /// Where the next end tag of the element begins, or the end of the page.
    qsizetype endTag() const
    {
        for (qsizetype open = m_page.indexOf(u'<', m_at); open >= 0; open = m_page.indexOf(u'<', open + 1)) {
            const qsizetype nameEnd = open + 2 + m_name.size();
            if (charAt(open + 1) != u'/' || nameEnd >= m_page.size())
                continue;
            const QChar next = m_page[nameEnd];
            const bool isNameEnd = isTagBlank(next) || next == u'/' || next == u'>';
            if (isNameEnd && m_page.sliced(open + 2, m_name.size()).compare(m_name, Qt::CaseInsensitive) == 0)
                return open;
        }
        return m_page.size();
    }

    const QStringView m_page;
    TokenKeys &m_keys;
    qsizetype m_at = 0;
    QString m_key;
    /// The last tag's name in lower case.
    QString m_name;
    std::vector<PageToken> m_tokens;
};

} // namespace

int TokenKeys::keyOf(QStringView text)
{
    if (const auto known = m_keys.find(text); known != m_keys.end())
        return known->second;
    m_texts.push_back(text.toString());
    const int key = count();
    m_keys.emplace(m_texts.back(), key);
    return key;
}

std::vector<PageToken> pageTokens(QStringView page, TokenKeys &keys)
{
    return TokenReader(page, keys).read();
}

} // namespace zephira

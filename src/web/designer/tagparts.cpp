// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/tagparts.h"

#include <QSet>
#include <QString>

#include <algorithm>

namespace zephira {

namespace {

/// Reads one tag. Each read…() begins at m_at and moves m_at past what it has read.
class TagReader
{
public:
    TagReader(QStringView page, qsizetype open) : m_page(page), m_at(open + 1) {}

    TagParts read()
    {
        TagParts tag;
        tag.isEnd = m_at < m_page.size() && m_page[m_at] == u'/';
        m_at += tag.isEnd;
        tag.nameBegin = m_at;
        while (m_at < m_page.size() && !isTagBlank(m_page[m_at]) && m_page[m_at] != u'/' && m_page[m_at] != u'>')
            ++m_at;
        tag.nameEnd = m_at;
        for (;;) {
            const qsizetype blanks = m_at;
            while (m_at < m_page.size() && (isTagBlank(m_page[m_at]) || m_page[m_at] == u'/'))
                ++m_at;
            if (m_at >= m_page.size())
                break;
            if (m_page[m_at] == u'>') {
                ++m_at;
                break;
            }
            readAttribute(tag.attributes, blanks);
        }
        tag.end = m_at;
        return tag;
    }

private:
    void skipBlanks(qsizetype &place) const
    {
        while (place < m_page.size() && isTagBlank(m_page[place]))
            ++place;
    }

    void readAttribute(std::vector<TagAttribute> &attributes, qsizetype blanks)
    {
        TagAttribute attribute;
        attribute.begin = blanks;
        attribute.nameBegin = m_at++;
        while (m_at < m_page.size() && !isTagBlank(m_page[m_at]) && !QStringView(u"/>=").contains(m_page[m_at]))
            ++m_at;
        attribute.nameEnd = m_at;
        qsizetype sign = m_at;
        skipBlanks(sign);
        if (sign < m_page.size() && m_page[sign] == u'=') {
            m_at = sign + 1;
            skipBlanks(m_at);
            readValue(attribute);
        }
        attribute.end = m_at;
        attribute.isRepeated = isKnown(attributes, attribute.name(m_page));
        attributes.push_back(attribute);
    }

    void readValue(TagAttribute &attribute)
    {
        const QChar quote = m_at < m_page.size() ? m_page[m_at] : QChar();
        attribute.isQuoted = quote == u'"' || quote == u'\'';
        m_at += attribute.isQuoted;
        attribute.valueBegin = m_at;
        if (attribute.isQuoted) {
            const qsizetype end = m_page.indexOf(quote, m_at);
            attribute.valueEnd = end < 0 ? m_page.size() : end;
            m_at = std::min(attribute.valueEnd + 1, m_page.size());
            return;
        }
        while (m_at < m_page.size() && !isTagBlank(m_page[m_at]) && m_page[m_at] != u'>')
            ++m_at;
        attribute.valueEnd = m_at;
    }

    /// A few names are compared one by one, many are looked up.
    bool isKnown(const std::vector<TagAttribute> &attributes, QStringView name)
    {
        constexpr size_t few = 16;
        if (attributes.size() < few) {
            return std::ranges::any_of(attributes, [&](const TagAttribute &each) {
                return each.name(m_page).compare(name, Qt::CaseInsensitive) == 0;
            });
        }
        if (m_names.isEmpty()) {
            for (const TagAttribute &each : attributes)
                m_names.insert(each.name(m_page).toString().toLower());
        }
        const QString wanted = name.toString().toLower();
        const bool isThere = m_names.contains(wanted);
        m_names.insert(wanted);
        return isThere;
    }

    const QStringView m_page;
    qsizetype m_at;
    /// The names in lower case, once there are many.
    QSet<QString> m_names;
};

} // namespace

bool isTagBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

TagParts readTag(QStringView page, qsizetype open)
{
    return TagReader(page, open).read();
}

} // namespace zephira

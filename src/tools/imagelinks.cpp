// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/imagelinks.h"

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView source = u"src";

bool endsValue(QChar sign)
{
    return sign == u' ' || sign == u'>' || sign == u'"';
}

/// Where the value begins, given the index of "src".
qsizetype valueStart(QStringView text, qsizetype found)
{
    const qsizetype next = found + source.size() + 1;
    return next < text.size() && text[next] == u'"' ? next + 1 : next;
}

/// The index of the first character from `start` on that ends a value, or the text's length.
qsizetype valueEnd(QStringView text, qsizetype start)
{
    const QStringView rest = text.sliced(std::min(start, text.size()));
    return text.size() - (rest.end() - std::ranges::find_if(rest, endsValue));
}

/// The addresses of the tags of a page, to be requested from the first tag to the last. Many `<img` may precede one
/// ">"; what was found for one of them is kept for the next, so that no part of the page is searched twice.
class AddressFinder
{
public:
    AddressFinder(const QString &html, const QString &lower) : m_html(html), m_lower(lower) {}

    /// The address in the tag that begins at `start`.
    QString addressAt(qsizetype start)
    {
        if (m_close < start)
            m_close = m_html.indexOf(u'>', start);
        if (m_close < 0)
            throw HandlerError{u"Invalid procedure call or argument"_s};
        if (m_source < start)
            findSource(start);
        return m_source < m_close ? m_address : QString();
    }

private:
    void findSource(qsizetype start)
    {
        const qsizetype found = m_lower.indexOf(source, start);
        m_source = found < 0 ? m_html.size() : found;
        // The tag may end where the value's first character would be.
        const qsizetype behind = m_source + source.size();
        if (behind >= m_html.size() || m_html[behind] == u'>') {
            m_address.clear();
            return;
        }
        const qsizetype begin = std::min(valueStart(m_html, m_source), m_html.size());
        if (m_end < begin)
            m_end = valueEnd(m_html, begin);
        m_total += m_end - begin;
        if (m_total > maximumLinksLength)
            throw HandlerError{u"Out of string space"_s};
        m_address = m_html.sliced(begin, m_end - begin);
    }

    const QString &m_html;
    const QString &m_lower;
    /// Indexes at or behind the start of the last tag: of a ">", of "src" (the text's length if there is none), and of
    /// the end of the value there.
    qsizetype m_close = -1;
    qsizetype m_source = -1;
    qsizetype m_end = -1;
    QString m_address;
    qsizetype m_total = 0;
};

} // namespace

QString URLFromTag(const QString &tag)
{
    const qsizetype found = LCase(tag).indexOf(source);
    if (found < 0)
        return {};
    const qsizetype begin = std::min(valueStart(tag, found), tag.size());
    return tag.sliced(begin, valueEnd(tag, begin) - begin);
}

qsizetype LinksFromHTML(QStringList &urls, const QString &html)
{
    urls = QStringList{QString()};
    const QString lower = LCase(html);
    AddressFinder finder(html, lower);
    constexpr QStringView image = u"<img";
    for (qsizetype start = lower.indexOf(image); start >= 0; start = lower.indexOf(image, start + 1)) {
        if (const QString address = finder.addressAt(start); !address.isEmpty())
            urls.append(address);
    }
    return urls.size();
}

} // namespace zephira

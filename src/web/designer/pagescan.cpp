// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/pagescan.h"

#include <algorithm>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView rawElements[] = {u"script", u"style", u"xmp", u"iframe", u"noembed", u"noframes", u"noscript"};
constexpr QStringView plainElements[] = {u"textarea", u"title"};
constexpr QStringView foreignElements[] = {u"svg", u"math"};
/// Server elements whose content is code too.
constexpr QStringView codeElements[] = {u"cfscript", u"cfquery"};

bool isOneOfInAnyCase(QStringView name, std::span<const QStringView> names)
{
    return std::ranges::any_of(names, [&](QStringView each) { return each.compare(name, Qt::CaseInsensitive) == 0; });
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isServerName(QStringView name)
{
    return name.contains(u':') || (name.size() > 2 && name.startsWith(u"cf", Qt::CaseInsensitive) && isLetter(name[2]));
}

/// Scans the source once. Each read…() begins at m_at and moves m_at past what it has read.
class Scanner
{
public:
    explicit Scanner(QStringView source) : m_source(source), m_size(source.size()) {}

    std::vector<PagePiece> scan()
    {
        while (m_at < m_size)
            readContent();
        flush(PieceKind::Text, m_size);
        return std::move(m_pieces);
    }

private:
    bool at(qsizetype place, QStringView text) const
    {
        return m_source.sliced(place).startsWith(text, Qt::CaseInsensitive);
    }
    QChar charAt(qsizetype place) const { return place < m_size ? m_source[place] : QChar(); }

    /// The position after the next `text` at or after `from`, or the end of the source.
    qsizetype behind(QStringView text, qsizetype from) const
    {
        const qsizetype found = from < m_size ? m_source.indexOf(text, from) : -1;
        return found < 0 ? m_size : found + text.size();
    }

    /// Ends the current piece, which began where the last one ended.
    void flush(PieceKind kind, qsizetype end)
    {
        if (end > m_begin)
            m_pieces.push_back({kind, m_begin, end});
        m_begin = end;
    }

    void add(PieceKind kind, qsizetype end)
    {
        m_pieces.push_back({kind, m_begin, end});
        m_begin = m_at = end;
    }

    /// The position after the server code that begins at `place`; `place` itself if none does.
    qsizetype behindServerCode(qsizetype place) const
    {
        if (charAt(place) != u'<')
            return place;
        if (at(place, u"<%--"))
            return behind(u"--%>", place + 4);
        if (at(place, u"<%"))
            return behind(u"%>", place + 2);
        if (at(place, u"<?php") || at(place, u"<?=") || (at(place, u"<?") && isBlank(charAt(place + 2))))
            return behind(u"?>", place + 2);
        return at(place, u"<!--#") ? behind(u"-->", place + 5) : place;
    }

    void readContent()
    {
        const qsizetype open = m_source.indexOf(u'<', m_at);
        if (open < 0) {
            m_at = m_size;
            return;
        }
        m_at = open;
        if (const qsizetype end = behindServerCode(open); end > open) {
            flush(PieceKind::Text, open);
            add(PieceKind::ServerText, end);
        } else if (isLetter(charAt(open + 1)) || (charAt(open + 1) == u'/' && isLetter(charAt(open + 2)))
                   || behindServerCode(open + 1) > open + 1
                   || (charAt(open + 1) == u'/' && behindServerCode(open + 2) > open + 2)) {
            flush(PieceKind::Text, open);
            readTag();
        } else if (charAt(open + 1) == u'!' || charAt(open + 1) == u'?' || charAt(open + 1) == u'/') {
            flush(PieceKind::Text, open);
            readDeclaration();
        } else {
            ++m_at;
        }
    }

    void readDeclaration()
    {
        if (at(m_at, u"<!--"))
            add(PieceKind::Comment, behindComment());
        else if (at(m_at, u"<!doctype"))
            add(PieceKind::Doctype, behind(u">", m_at));
        else if (at(m_at, u"<![CDATA["))
            add(PieceKind::Comment, behind(u"]]>", m_at));
        else
            add(PieceKind::Comment, behind(u">", m_at));
    }

    /// ColdFusion comments have a third dash and can be nested. Server code is processed first, so a comment's end
    /// inside it doesn't count.
    qsizetype behindComment() const
    {
        int depth = 0;
        qsizetype place = m_at;
        while (place < m_size) {
            if (at(place, u"-->") && place >= m_at + 2) {
                const bool ofServer = place > m_at + 4 && m_source[place - 1] == u'-';
                if (!ofServer || --depth <= 0)
                    return place + 3;
                place += 3;
            } else if (at(place, u"--!>") && place >= m_at + 4) {
                return place + 4;
            } else if (at(place, u"<!---")) {
                ++depth;
                place += 2;
            } else if (const qsizetype end = behindServerCode(place); end > place && !at(place, u"<!--")) {
                place = end;
            } else {
                ++place;
            }
        }
        return m_size;
    }

    void readTag()
    {
        const qsizetype open = m_at;
        const bool isEnd = charAt(open + 1) == u'/';
        const qsizetype nameBegin = open + (isEnd ? 2 : 1);
        qsizetype place = nameBegin;
        bool ofServer = false;
        while (place < m_size && !isBlank(m_source[place]) && m_source[place] != u'>' && m_source[place] != u'/') {
            const qsizetype end = behindServerCode(place);
            ofServer = ofServer || end > place;
            place = std::max(place + 1, end);
        }
        const QStringView name = m_source.sliced(nameBegin, place - nameBegin);
        m_at = place;
        if (ofServer || isServerName(name)) {
            readServerTag(name, isEnd);
            return;
        }
        const bool isClosed = readAttributes();
        flush(PieceKind::Markup, m_at);
        if (isEnd)
            leaveElement(name);
        else
            enterElement(name, isClosed);
    }

    void readServerTag(QStringView name, bool isEnd)
    {
        while (m_at < m_size && m_source[m_at] != u'>') {
            const QChar c = m_source[m_at];
            if (c == u'"' || c == u'\'')
                m_at = behind(m_source.sliced(m_at, 1), m_at + 1);
            else
                m_at = std::max(m_at + 1, behindServerCode(m_at));
        }
        m_at = std::min(m_at + 1, m_size);
        if (!isEnd && isOneOfInAnyCase(name, codeElements))
            m_at = behindElement(name, m_at).second;
        add(PieceKind::ServerText, m_at);
    }

    /// Reads up to the tag's end. Returns whether the tag is self-closing.
    bool readAttributes()
    {
        bool isClosed = false;
        while (m_at < m_size && m_source[m_at] != u'>') {
            if (isBlank(m_source[m_at]) || m_source[m_at] == u'/') {
                isClosed = m_source[m_at++] == u'/';
                continue;
            }
            isClosed = false;
            readAttributeName();
            qsizetype place = m_at;
            while (isBlank(charAt(place)))
                ++place;
            if (charAt(place) == u'=') {
                m_at = place + 1;
                readAttributeValue();
            }
        }
        m_at = std::min(m_at + 1, m_size);
        return isClosed;
    }

    /// The name has at least one character, which may be anything.
    void readAttributeName()
    {
        const qsizetype first = m_at;
        while (m_at < m_size) {
            const QChar c = m_source[m_at];
            if (isBlank(c) || c == u'>' || c == u'/' || (c == u'=' && m_at > first))
                return;
            if (const qsizetype end = behindServerCode(m_at); end > m_at) {
                flush(PieceKind::Markup, m_at);
                add(PieceKind::ServerTag, end);
            } else {
                ++m_at;
            }
        }
    }

    void readAttributeValue()
    {
        while (isBlank(charAt(m_at)))
            ++m_at;
        const QChar quote = charAt(m_at);
        const bool isQuoted = quote == u'"' || quote == u'\'';
        m_at += isQuoted;
        flush(PieceKind::Markup, m_at);
        const qsizetype first = m_at;
        while (m_at < m_size) {
            const QChar c = m_source[m_at];
            if (isQuoted ? c == quote : isBlank(c) || c == u'>')
                break;
            if (const qsizetype end = behindServerCode(m_at); end > m_at) {
                flush(PieceKind::Value, m_at);
                add(PieceKind::ServerPlain, end);
            } else {
                ++m_at;
            }
        }
        if (m_at == first)
            m_pieces.push_back({PieceKind::Value, m_at, m_at});
        flush(PieceKind::Value, m_at);
        if (isQuoted && m_at < m_size)
            ++m_at;
    }

    void leaveElement(QStringView name)
    {
        if (m_foreign > 0 && isOneOfInAnyCase(name, foreignElements))
            --m_foreign;
    }

    /// Reads the content of elements that can't contain tags. In SVG and MathML all elements can.
    void enterElement(QStringView name, bool isClosed)
    {
        if (isOneOfInAnyCase(name, foreignElements) && !isClosed) {
            ++m_foreign;
        } else if (m_foreign == 0) {
            if (isOneOfInAnyCase(name, rawElements))
                readTagless(PieceKind::RawText, behindElement(name, m_at).first);
            else if (isOneOfInAnyCase(name, plainElements))
                readTagless(PieceKind::PlainText, behindElement(name, m_at).first);
            else if (name.compare(u"plaintext", Qt::CaseInsensitive) == 0)
                readTagless(PieceKind::RawText, m_size);
        }
    }

    /// The positions before and after the next end tag of that name outside server code; both are the end of the source
    /// if there is none.
    std::pair<qsizetype, qsizetype> behindElement(QStringView name, qsizetype from) const
    {
        qsizetype place = from;
        while (place < m_size) {
            const qsizetype open = m_source.indexOf(u'<', place);
            if (open < 0)
                break;
            const qsizetype nameEnd = open + 2 + name.size();
            if (charAt(open + 1) == u'/' && at(open + 2, name)
                && (nameEnd >= m_size || isBlank(m_source[nameEnd]) || m_source[nameEnd] == u'>'
                    || m_source[nameEnd] == u'/'))
                return {open, behind(u">", nameEnd)};
            place = std::max(open + 1, behindServerCode(open));
        }
        return {m_size, m_size};
    }

    void readTagless(PieceKind kind, qsizetype end)
    {
        while (m_at < end) {
            if (const qsizetype behindCode = behindServerCode(m_at); behindCode > m_at) {
                flush(kind, m_at);
                add(PieceKind::ServerPlain, std::min(behindCode, m_size));
            } else {
                ++m_at;
            }
        }
        flush(kind, m_at);
    }

    const QStringView m_source;
    const qsizetype m_size;
    qsizetype m_begin = 0;
    qsizetype m_at = 0;
    int m_foreign = 0;
    std::vector<PagePiece> m_pieces;
};

} // namespace

std::vector<PagePiece> scanPage(QStringView source)
{
    return Scanner(source).scan();
}

QStringView tagNameOf(QStringView markup, bool *isEnd)
{
    const bool end = markup.startsWith(u"</");
    if (isEnd)
        *isEnd = end;
    const qsizetype first = end ? 2 : 1;
    if (!markup.startsWith(u'<') || markup.size() <= first || !isLetter(markup[first]))
        return {};
    qsizetype last = first;
    while (last < markup.size() && !isBlank(markup[last]) && markup[last] != u'>' && markup[last] != u'/')
        ++last;
    return markup.sliced(first, last - first);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/fonttags.h"

#include "core/textparts.h"

#include <algorithm>

namespace zephira {

namespace {

/// How a piece of markup that isn't a tag begins and ends.
struct Section {
    QByteArrayView begin;
    QByteArrayView end;
};

/// The first one that fits counts. A plain instruction ends at the next ">".
constexpr Section sections[] = {
    {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<%", "%>"},  {"<#", "#>"},
    {"<?php", "?>"}, {"<?=", "?>"},        {"<? ", "?>"}, {"<?\n", "?>"},
};

/// Elements whose content isn't markup.
constexpr QByteArrayView rawElements[] = {"script", "style"};

bool isNamePart(char sign)
{
    return isAsciiLetter(sign) || (sign >= '0' && sign <= '9') || sign == '-' || sign == ':' || sign == '_'
        || sign == '.';
}

bool equalsName(QByteArrayView name, QByteArrayView lower)
{
    return name.compare(lower, Qt::CaseInsensitive) == 0;
}

class FontTagRemover
{
public:
    explicit FontTagRemover(QByteArrayView markup) : m_markup(markup) {}

    QByteArray result()
    {
        m_result.reserve(m_markup.size());
        while (m_at < m_markup.size()) {
            const qsizetype bracket = indexOf("<", m_at);
            keepUpTo(bracket);
            if (m_at < m_markup.size())
                passPiece();
        }
        return std::move(m_result);
    }

private:
    /// The index of a text from `from` on, or the end.
    qsizetype indexOf(QByteArrayView text, qsizetype from) const
    {
        const qsizetype found = m_markup.indexOf(text, from);
        return found < 0 ? m_markup.size() : found;
    }
    /// The index behind a text, or the end.
    qsizetype behind(QByteArrayView text, qsizetype from) const
    {
        return std::min(indexOf(text, from) + text.size(), m_markup.size());
    }
    QByteArrayView rest(qsizetype from) const { return m_markup.sliced(std::min(from, m_markup.size())); }

    void keepUpTo(qsizetype end)
    {
        m_result.append(m_markup.sliced(m_at, end - m_at));
        m_at = end;
    }

    /// Passes what begins with the "<" at the current place.
    void passPiece()
    {
        for (const Section &section : sections) {
            if (rest(m_at).startsWith(section.begin)) {
                keepUpTo(behind(section.end, m_at + section.begin.size()));
                return;
            }
        }
        const qsizetype name = m_at + (rest(m_at + 1).startsWith("/") ? 2 : 1);
        if (name < m_markup.size() && isAsciiLetter(m_markup[name]))
            passTag(name);
        else if (rest(m_at + 1).startsWith("!") || rest(m_at + 1).startsWith("?"))
            keepUpTo(tagEnd(m_at + 2));
        else
            keepUpTo(m_at + 1);
    }

    void passTag(qsizetype name)
    {
        qsizetype nameEnd = name;
        while (nameEnd < m_markup.size() && isNamePart(m_markup[nameEnd]))
            ++nameEnd;
        const QByteArrayView element = m_markup.sliced(name, nameEnd - name);
        const bool isStart = name == m_at + 1;
        const qsizetype end = tagEnd(nameEnd);
        if (equalsName(element, "font") || equalsName(element, "center")) {
            m_at = end;
            return;
        }
        keepUpTo(end);
        if (isStart && !m_result.endsWith("/>")
            && std::ranges::any_of(rawElements, [&](QByteArrayView raw) { return equalsName(element, raw); }))
            keepUpTo(rawEnd(element));
    }

    /// The index behind the tag's ">", which isn't within quotes or server code.
    qsizetype tagEnd(qsizetype from) const
    {
        for (qsizetype at = from; at < m_markup.size(); ++at) {
            const char sign = m_markup[at];
            if (sign == '>')
                return at + 1;
            if (sign == '"' || sign == '\'')
                at = indexOf(m_markup.sliced(at, 1), at + 1);
            else if (rest(at).startsWith("<%"))
                at = behind("%>", at + 2) - 1;
            else if (rest(at).startsWith("<?"))
                at = behind("?>", at + 2) - 1;
        }
        return m_markup.size();
    }

    /// The index of the end tag of an element whose content isn't markup, or the end.
    qsizetype rawEnd(QByteArrayView element) const
    {
        for (qsizetype at = indexOf("</", m_at); at < m_markup.size(); at = indexOf("</", at + 2)) {
            if (equalsName(rest(at + 2).first(std::min(element.size(), rest(at + 2).size())), element))
                return at;
        }
        return m_markup.size();
    }

    const QByteArrayView m_markup;
    qsizetype m_at = 0;
    QByteArray m_result;
};

} // namespace

QByteArray withoutFontTags(QByteArrayView markup)
{
    return FontTagRemover(markup).result();
}

} // namespace zephira

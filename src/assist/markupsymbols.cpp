// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/markupsymbols.h"

#include "assist/scriptsymbols.h"
#include "assist/stylesymbols.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qsizetype longestHeading = 2048;

constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isEqual(QByteArrayView a, QByteArrayView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

struct Attribute {
    QByteArrayView name;
    QByteArrayView value;
    qsizetype valueAt = 0;
};

/// Reads the page from left to right.
class MarkupScanner
{
public:
    explicit MarkupScanner(QByteArrayView text) : m_text(text) {}

    DocumentSymbols scan()
    {
        while (m_at < m_text.size()) {
            if (m_text[m_at] != '<') {
                const qsizetype next = m_text.indexOf('<', m_at);
                const qsizetype end = next < 0 ? m_text.size() : next;
                addToHeading(m_text.sliced(m_at, end - m_at));
                m_at = end;
            } else {
                scanMarkup();
            }
        }
        endHeading();
        return std::move(m_symbols);
    }

private:
    bool startsWith(QByteArrayView sign) const { return m_text.sliced(m_at).startsWith(sign); }

    qsizetype behind(QByteArrayView end, qsizetype from) const
    {
        const qsizetype found = m_text.indexOf(end, from);
        return found < 0 ? m_text.size() : found + end.size();
    }

    void scanMarkup()
    {
        if (startsWith("<!--"))
            m_at = behind("-->", m_at + 4);
        else if (startsWith("<![CDATA["))
            m_at = behind("]]>", m_at);
        else if (startsWith("<%"))
            scanServerCode("%>", ScriptLanguage::Basic);
        else if (startsWith("<?"))
            scanServerCode("?>", ScriptLanguage::Php);
        else if (startsWith("<!"))
            m_at = behind(">", m_at);
        else if (m_at + 1 < m_text.size() && m_text[m_at + 1] == '/')
            scanEndTag();
        else if (m_at + 1 < m_text.size() && isLetter(m_text[m_at + 1]))
            scanTag();
        else
            ++m_at;
    }

    void scanServerCode(QByteArrayView end, ScriptLanguage language)
    {
        const qsizetype start = m_at + 2;
        m_at = behind(end, start);
        const QByteArrayView code = m_text.sliced(std::min(start, m_text.size()), std::max<qsizetype>(m_at - start, 0));
        if (!code.startsWith("xml"))
            append(scriptSymbols(code, language, start));
    }

    void scanEndTag()
    {
        const qsizetype start = m_at + 2;
        m_at = behind(">", start);
        const QByteArrayView tag = m_text.sliced(start, m_at - start);
        if (m_level > 0 && tag.size() > 1 && (tag[0] == 'h' || tag[0] == 'H') && tag[1] >= '1' && tag[1] <= '6')
            endHeading();
    }

    void scanTag()
    {
        const qsizetype start = m_at;
        const qsizetype nameStart = ++m_at;
        while (m_at < m_text.size() && !isBlank(m_text[m_at]) && m_text[m_at] != '>' && m_text[m_at] != '/')
            ++m_at;
        const QByteArrayView name = m_text.sliced(nameStart, m_at - nameStart);
        QByteArrayView kind; // of a script
        if (name.size() == 2 && (name[0] == 'h' || name[0] == 'H') && name[1] >= '1' && name[1] <= '6') {
            endHeading();
            m_level = name[1] - '0';
            m_headingAt = m_symbols.size();
            addSymbol(m_symbols, {DocumentSymbol::Kind::Heading, {}, start, m_level});
        }
        Attribute attribute;
        while (readAttribute(attribute)) {
            if (isEqual(attribute.name, "id") && !attribute.value.isEmpty())
                addSymbol(m_symbols, {DocumentSymbol::Kind::Id, symbolName(attribute.value), attribute.valueAt});
            else if (isEqual(attribute.name, "type") || isEqual(attribute.name, "language"))
                kind = attribute.value;
        }
        if (isEqual(name, "script"))
            scanRaw("</script", [&](QByteArrayView code, qsizetype at) {
                const QByteArray type = kind.toByteArray().toLower();
                if (type.contains("vb"))
                    append(scriptSymbols(code, ScriptLanguage::Basic, at));
                else if (!type.contains("json") && !type.contains("html") && !type.contains("template"))
                    append(scriptSymbols(code, ScriptLanguage::JavaScript, at));
            });
        else if (isEqual(name, "style"))
            scanRaw("</style", [&](QByteArrayView code, qsizetype at) { append(styleSymbols(code, at)); });
        else if (isEqual(name, "textarea"))
            scanRaw("</textarea", [](QByteArrayView, qsizetype) {});
    }

    /// Reads the next attribute of a tag, or goes behind the tag and returns false.
    bool readAttribute(Attribute &attribute)
    {
        while (m_at < m_text.size() && (isBlank(m_text[m_at]) || m_text[m_at] == '/'))
            ++m_at;
        if (m_at >= m_text.size())
            return false;
        if (m_text[m_at] == '>') {
            ++m_at;
            return false;
        }
        // A tag that was never closed ends where the next one begins, unless that is server code.
        if (m_text[m_at] == '<') {
            if (startsWith("<%") || startsWith("<?")) {
                m_at = behind(startsWith("<%") ? "%>" : "?>", m_at);
                attribute = {};
                return true;
            }
            return false;
        }
        const auto skipWhile = [this](auto isPart) {
            const qsizetype start = m_at;
            while (m_at < m_text.size() && isPart(m_text[m_at]))
                ++m_at;
            return m_text.sliced(start, m_at - start);
        };
        const qsizetype before = m_at;
        attribute = {
            skipWhile([](char c) { return !isBlank(c) && c != '=' && c != '>' && c != '/' && c != '<'; }), {}, 0};
        skipWhile(isBlank);
        if (m_at >= m_text.size() || m_text[m_at] != '=') {
            if (m_at == before)
                ++m_at;
            return true;
        }
        ++m_at;
        skipWhile(isBlank);
        if (m_at >= m_text.size())
            return true;
        const char quote = m_text[m_at];
        if (quote == '"' || quote == '\'') {
            attribute.valueAt = ++m_at;
            const qsizetype end = m_text.indexOf(quote, m_at);
            // A quote without its partner hides no more than the tag.
            const qsizetype stop = end < 0 ? std::max(m_text.indexOf('>', m_at), m_at) : end;
            attribute.value = m_text.sliced(m_at, stop - m_at);
            m_at = end < 0 ? stop : end + 1;
        } else {
            attribute.valueAt = m_at;
            attribute.value = skipWhile([](char c) { return !isBlank(c) && c != '>'; });
        }
        return true;
    }

    template<typename Use>
    void scanRaw(QByteArrayView end, Use use)
    {
        const qsizetype start = m_at;
        // Scripts and styles end at the first such tag, however it is written.
        qsizetype at = m_text.indexOf("</", start);
        while (at >= 0 && !isEqual(m_text.sliced(at, std::min(end.size(), m_text.size() - at)), end))
            at = m_text.indexOf("</", at + 2);
        m_at = at < 0 ? m_text.size() : at;
        use(m_text.sliced(start, m_at - start), start);
    }

    void append(DocumentSymbols symbols)
    {
        for (DocumentSymbol &symbol : symbols)
            addSymbol(m_symbols, std::move(symbol));
    }

    void addToHeading(QByteArrayView text)
    {
        if (m_level > 0 && m_heading.size() < longestHeading)
            m_heading.append(text.first(std::min(text.size(), longestHeading)));
    }

    void endHeading()
    {
        if (m_level == 0)
            return;
        QString name = symbolName(m_heading);
        for (const auto &[entity, sign] :
             {std::pair(u"&lt;"_s, u'<'), std::pair(u"&gt;"_s, u'>'), std::pair(u"&quot;"_s, u'"'),
              std::pair(u"&nbsp;"_s, u' '), std::pair(u"&amp;"_s, u'&')})
            name.replace(entity, QString(sign));
        if (m_headingAt < m_symbols.size())
            m_symbols[m_headingAt].name = name;
        m_heading.clear();
        m_level = 0;
    }

    QByteArrayView m_text;
    qsizetype m_at = 0;
    DocumentSymbols m_symbols;
    QByteArray m_heading;
    std::size_t m_headingAt = 0;
    int m_level = 0;
};

} // namespace

DocumentSymbols markupSymbols(QByteArrayView text)
{
    return MarkupScanner(text).scan();
}

} // namespace zephira

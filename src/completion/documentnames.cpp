// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/documentnames.h"

#include "completion/completiontext.h"

#include <algorithm>

namespace zephira {

namespace {

/// More than anybody looks through in a list.
constexpr qsizetype mostNames = 5000;
constexpr qsizetype longestName = 200;
constexpr qsizetype mostSheets = 100;

void addName(QSet<QByteArray> &names, QByteArrayView name)
{
    if (!name.isEmpty() && name.size() <= longestName && names.size() < mostNames)
        names.insert(name.toByteArray());
}

void addSheet(DocumentNames &names, QByteArrayView address)
{
    if (!address.isEmpty() && names.sheets.size() < mostSheets)
        names.sheets.append(address.toByteArray());
}

void addWords(QSet<QByteArray> &names, QByteArrayView value)
{
    const QByteArrayList words = completeWords(value.toByteArray() + ' ');
    for (const QByteArray &word : words)
        addName(names, word);
}

qsizetype nameEnd(QByteArrayView text, qsizetype at)
{
    while (at < text.size() && isNameByte(text[at]))
        ++at;
    return at;
}

/// The address in an at-rule such as `@import url("a.css") print`.
QByteArrayView importedSheet(QByteArrayView rule)
{
    rule = rule.trimmed();
    if (standsAt(rule, 0, "url("))
        rule = rule.sliced(4).first(std::max<qsizetype>(0, rule.sliced(4).indexOf(')'))).trimmed();
    if (rule.isEmpty() || (rule.front() != '"' && rule.front() != '\''))
        return rule;
    const qsizetype end = rule.indexOf(rule.front(), 1);
    return end < 0 ? QByteArrayView() : rule.sliced(1, end - 1);
}

/// A selector or an at-rule before its block or semicolon.
void readPrelude(DocumentNames &names, QByteArrayView prelude)
{
    prelude = prelude.trimmed();
    if (standsAt(prelude, 0, "@import"))
        addSheet(names, importedSheet(prelude.sliced(qstrlen("@import"))));
    if (prelude.startsWith('@'))
        return;
    for (qsizetype at = 0; at < prelude.size(); ++at) {
        const char c = prelude[at];
        if (c == '[') {
            at = prelude.indexOf(']', at);
            if (at < 0)
                return;
        }
        if ((c != '.' && c != '#') || (at + 1 < prelude.size() && isAsciiDigit(prelude[at + 1])))
            continue;
        const qsizetype end = nameEnd(prelude, at + 1);
        addName(c == '.' ? names.classes : names.ids, prelude.sliced(at + 1, end - at - 1));
        at = end - 1;
    }
}

/// Reads the tags of a text one by one.
class TagReader
{
public:
    TagReader(QByteArrayView text, PlaceLanguage language, DocumentNames &names)
        : m_text(text), m_isXml(language == PlaceLanguage::Xml), m_names(names)
    {}

    void read()
    {
        for (qsizetype at = m_text.indexOf('<'); at >= 0 && at < m_text.size(); at = m_text.indexOf('<', at))
            at = readFrom(at);
    }

private:
    qsizetype readFrom(qsizetype open);
    qsizetype readTag(qsizetype open);
    void take(QByteArrayView attribute, QByteArrayView value);
    qsizetype behind(QByteArrayView end, qsizetype from) const
    {
        const qsizetype found = m_text.indexOf(end, from);
        return found < 0 ? m_text.size() : found + end.size();
    }

    QByteArrayView m_text;
    bool m_isXml;
    DocumentNames &m_names;
    QByteArrayView m_href;
    bool m_isSheet = false;
};

qsizetype TagReader::readFrom(qsizetype open)
{
    if (standsAt(m_text, open, "<!--"))
        return behind("-->", open);
    if (const qsizetype end = behindServerBlock(m_text, open); end >= 0)
        return end;
    if (open + 1 < m_text.size() && (isAsciiLetter(m_text[open + 1]) || m_text[open + 1] == '_'))
        return readTag(open);
    return open + 1;
}

qsizetype TagReader::readTag(qsizetype open)
{
    qsizetype at = open + 1;
    while (at < m_text.size() && (isNameByte(m_text[at]) || m_text[at] == ':' || m_text[at] == '.'))
        ++at;
    const QByteArrayView tag = m_text.sliced(open + 1, at - open - 1);
    // A tag that is being typed at the text's end isn't a name yet.
    if (at == m_text.size())
        return at;
    addName(m_names.tags, tag);
    m_href = {};
    m_isSheet = false;
    while (at < m_text.size() && m_text[at] != '>' && m_text[at] != '<') {
        if (!isNameByte(m_text[at])) {
            ++at;
            continue;
        }
        const qsizetype name = at;
        while (at < m_text.size() && (isNameByte(m_text[at]) || m_text[at] == ':'))
            ++at;
        const QByteArrayView attribute = m_text.sliced(name, at - name);
        if (at < m_text.size())
            addName(m_names.attributes, attribute);
        if (at == m_text.size() || m_text[at] != '=')
            continue;
        qsizetype start = ++at;
        if (at < m_text.size() && (m_text[at] == '"' || m_text[at] == '\'')) {
            const qsizetype end = m_text.indexOf(m_text[at], at + 1);
            if (end < 0)
                return m_text.size();
            ++start;
            at = end;
        } else {
            while (at < m_text.size() && !isBlankOrBreak(m_text[at]) && m_text[at] != '>')
                ++at;
        }
        take(attribute, m_text.sliced(start, at - start));
        if (at < m_text.size() && m_text[at] != '>')
            ++at;
    }
    if (m_isSheet && tag.compare("link", Qt::CaseInsensitive) == 0)
        addSheet(m_names, m_href);
    if (m_isXml || at == m_text.size())
        return at;
    for (const QByteArrayView raw : {QByteArrayView("script"), QByteArrayView("style")}) {
        if (tag.compare(raw, Qt::CaseInsensitive) != 0)
            continue;
        const qsizetype end = findIgnoringCase(m_text, "</" + raw.toByteArray(), at);
        const qsizetype until = end < 0 ? m_text.size() : end;
        if (raw == "style")
            m_names.add(styleNames(m_text.sliced(at + 1, until - at - 1)));
        return until == m_text.size() ? until : until + 1;
    }
    return at;
}

void TagReader::take(QByteArrayView attribute, QByteArrayView value)
{
    const auto isCalled = [&](QByteArrayView name) { return attribute.compare(name, Qt::CaseInsensitive) == 0; };
    // A value that a server makes is no name.
    if (value.contains('<'))
        return;
    if (isCalled("id"))
        addName(m_names.ids, value.trimmed());
    else if (isCalled("class"))
        addWords(m_names.classes, value);
    else if (isCalled("href"))
        m_href = value.trimmed();
    else if (isCalled("rel"))
        m_isSheet = lowered(value).contains("stylesheet");
}

} // namespace

void DocumentNames::add(const DocumentNames &other)
{
    ids.unite(other.ids);
    classes.unite(other.classes);
    tags.unite(other.tags);
    attributes.unite(other.attributes);
    sheets.append(other.sheets);
}

DocumentNames markupNames(QByteArrayView text, PlaceLanguage language)
{
    DocumentNames names;
    TagReader(text, language, names).read();
    return names;
}

DocumentNames styleNames(QByteArrayView text)
{
    DocumentNames names;
    qsizetype start = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        switch (text[at]) {
        case '/':
            if (standsAt(text, at, "/*")) {
                const qsizetype end = text.indexOf("*/", at + 2);
                if (end < 0)
                    return names;
                at = end + 1;
                // Only a comment before a selector is left out of it.
                if (text.sliced(start, at - start).trimmed().startsWith("/*"))
                    start = at + 1;
            }
            break;
        case '"':
        case '\'': {
            const qsizetype end = text.indexOf(text[at], at + 1);
            const qsizetype line = text.indexOf('\n', at);
            if (end < 0 && line < 0)
                return names;
            at = end >= 0 && (line < 0 || end < line) ? end : line;
            break;
        }
        case '{':
        case ';':
            // A declaration within a rule ends in ";" too, but only an import ends outside of blocks.
            if (text[at] == '{' || standsAt(text.sliced(start).trimmed(), 0, "@import"))
                readPrelude(names, text.sliced(start, at - start));
            start = at + 1;
            break;
        case '}':
            start = at + 1;
            break;
        default:
            break;
        }
    }
    return names;
}

QSet<QByteArray> wordsOf(QByteArrayView text, qsizetype most)
{
    constexpr qsizetype shortest = 3;
    QSet<QByteArray> words;
    for (qsizetype at = 0; at < text.size() && words.size() < most;) {
        const qsizetype end = nameEnd(text, at);
        if (end - at >= shortest && end - at <= longestName && !isAsciiDigit(text[at]) && text[at] != '-')
            words.insert(text.sliced(at, end - at).toByteArray());
        at = end + 1;
    }
    return words;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/abbreviations/abbreviationplace.h"

#include <QByteArray>

#include <algorithm>
#include <limits>
#include <utility>

namespace zephira {

namespace {

/// How many bytes at a page's beginning are read for its type.
constexpr qsizetype headLength = 2000;

QByteArray copied(const OpenElements::Text &text, qsizetype start, qsizetype end)
{
    QByteArray copy;
    qsizetype begin = 0;
    for (const QByteArrayView &piece : text) {
        const qsizetype first = std::clamp(start - begin, qsizetype{0}, piece.size());
        const qsizetype last = std::clamp(end - begin, qsizetype{0}, piece.size());
        copy.append(piece.sliced(first, last - first));
        begin += piece.size();
    }
    return copy;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

/// The attribute that a half tag ends in the quoted value of, in lower case; empty if it ends elsewhere.
QByteArray openValue(QByteArrayView tag)
{
    qsizetype at = 0;
    while (at < tag.size()) {
        const char quote = tag[at];
        if (quote != '"' && quote != '\'') {
            ++at;
            continue;
        }
        qsizetype end = at;
        while (end > 0 && isBlank(tag[end - 1]))
            --end;
        const qsizetype close = tag.indexOf(quote, at + 1);
        if (close >= 0 || end == 0 || tag[end - 1] != '=') {
            at = std::max(close, at) + 1;
            continue;
        }
        --end;
        while (end > 0 && isBlank(tag[end - 1]))
            --end;
        qsizetype start = end;
        while (start > 0 && !isBlank(tag[start - 1]) && tag[start - 1] != '"' && tag[start - 1] != '\'')
            --start;
        return tag.sliced(start, end - start).toByteArray().toLower();
    }
    return {};
}

} // namespace

std::optional<AbbreviationSyntax> abbreviationSyntax(OpenElements &reader, const OpenElements::Text &text,
                                                     qsizetype position)
{
    const MarkupRules rules = reader.rules();
    const auto elements = reader.around(text, position, std::numeric_limits<qsizetype>::max());
    if (elements && !elements->empty()) {
        const ElementTag &inner = elements->back();
        if (position < inner.tagEnd) {
            if (openValue(copied(text, inner.begin, position)) == "style")
                return AbbreviationSyntax::StyleAttribute;
            // A bracket behind the caret makes a tag of what is only being typed.
            return {};
        }
        if (rules == MarkupRules::Html && inner.name == "style")
            return AbbreviationSyntax::StyleSheet;
        if (rules == MarkupRules::Html && inner.name == "script")
            return {};
    }
    if (rules == MarkupRules::Xml)
        return AbbreviationSyntax::Xml;
    const QByteArray head = copied(text, 0, headLength).toLower();
    const bool isXhtml = head.contains("//dtd xhtml") || head.contains("http://www.w3.org/1999/xhtml");
    return isXhtml ? AbbreviationSyntax::Xhtml : AbbreviationSyntax::Html;
}

QStringList withoutSharedIndent(const QStringList &lines)
{
    const auto indentOf = [](const QString &line) -> qsizetype {
        return std::ranges::find_if(line, [](QChar c) { return c != u' ' && c != u'\t'; }) - line.begin();
    };
    qsizetype shared = std::numeric_limits<qsizetype>::max();
    for (const QString &line : lines) {
        if (const qsizetype indent = indentOf(line); indent < line.size())
            shared = std::min(shared, indent);
    }
    QStringList result;
    for (const QString &line : lines)
        result.append(line.sliced(std::min(shared, indentOf(line))));
    return result;
}

} // namespace zephira

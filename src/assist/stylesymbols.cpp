// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/stylesymbols.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The position behind a string that begins here. One without an end ends with its line.
qsizetype behindString(QByteArrayView text, qsizetype at)
{
    const char quote = text[at];
    for (++at; at < text.size() && text[at] != quote && text[at] != '\n'; ++at) {
        if (text[at] == '\\')
            ++at;
    }
    return std::min(at + 1, text.size());
}

} // namespace

DocumentSymbols styleSymbols(QByteArrayView text, qsizetype offset)
{
    DocumentSymbols symbols;
    QByteArray selector;
    qsizetype start = -1;
    // For each open brace: whether the steps of an animation are in it, which aren't rules.
    std::vector<bool> open;
    const auto begin = [&] {
        selector.clear();
        start = -1;
    };
    constexpr qsizetype longest = 1024;
    for (qsizetype at = 0; at < text.size();) {
        const QByteArrayView rest = text.sliced(at);
        const char c = text[at];
        if (rest.startsWith("/*")) {
            const qsizetype end = text.indexOf("*/", at + 2);
            at = end < 0 ? text.size() : end + 2;
            continue;
        }
        if (rest.startsWith("<!--") || rest.startsWith("-->")) {
            at += c == '<' ? 4 : 3;
            continue;
        }
        if (c == '{') {
            const bool inSteps = !open.empty() && open.back();
            if (start >= 0 && !inSteps)
                addSymbol(symbols, {DocumentSymbol::Kind::Rule, symbolName(selector), offset + start});
            open.push_back(selector.startsWith('@') && selector.left(longest).contains("keyframes"));
            begin();
        } else if (c == '}' || c == ';') {
            if (c == '}' && !open.empty())
                open.pop_back();
            begin();
        } else {
            if (start < 0 && !isBlank(c))
                start = at;
            const qsizetype end = c == '"' || c == '\'' ? behindString(text, at)
                : c == '\\'                             ? std::min(at + 2, text.size())
                                                        : at + 1;
            if (start >= 0 && selector.size() < longest)
                selector.append(text.sliced(at, std::min(end - at, longest)));
            at = end;
            continue;
        }
        ++at;
    }
    return symbols;
}

} // namespace zephira

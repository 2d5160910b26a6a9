// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/servercode.h"

#include "completion/completiontext.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

/// Farther away than this, "}}" doesn't belong to "{{".
constexpr qsizetype longestTemplate = 1000;
constexpr qsizetype longestServerTag = 4000;

qsizetype behind(QByteArrayView text, QByteArrayView what, qsizetype from)
{
    const qsizetype found = text.indexOf(what, from);
    return found < 0 ? text.size() : found + what.size();
}

/// The end of a heredoc, whose "<<<" ends at `at`; -1 if it isn't one.
qsizetype behindHeredoc(QByteArrayView text, qsizetype at)
{
    while (at < text.size() && (text[at] == ' ' || text[at] == '\'' || text[at] == '"'))
        ++at;
    qsizetype end = at;
    while (end < text.size() && isNameByte(text[end]))
        ++end;
    const QByteArrayView name = text.sliced(at, end - at);
    if (name.isEmpty())
        return -1;
    for (qsizetype line = text.indexOf('\n', end); line >= 0; line = text.indexOf('\n', line + 1)) {
        qsizetype start = line + 1;
        while (start < text.size() && (text[start] == ' ' || text[start] == '\t'))
            ++start;
        const QByteArrayView rest = text.sliced(start);
        if (rest.startsWith(name) && (rest.size() == name.size() || !isNameByte(rest[name.size()])))
            return start + name.size();
    }
    return text.size();
}

/// The end of PHP that begins at `at`: "?>" in a string doesn't end it, "?>" in a comment of one line does.
qsizetype behindPhp(QByteArrayView text, qsizetype at)
{
    while (at < text.size()) {
        const QByteArrayView rest = text.sliced(at);
        if (rest.startsWith("?>"))
            return at + 2;
        const char c = rest.front();
        if (c == '"' || c == '\'' || c == '`') {
            ++at;
            while (at < text.size() && text[at] != c)
                at += text[at] == '\\' ? 2 : 1;
            ++at;
        } else if (rest.startsWith("/*")) {
            at = behind(text, "*/", at + 2);
        } else if (rest.startsWith("//") || (c == '#' && !rest.startsWith("#["))) {
            while (at < text.size() && text[at] != '\n' && text[at] != '\r' && !text.sliced(at).startsWith("?>"))
                ++at;
        } else if (rest.startsWith("<<<")) {
            const qsizetype end = behindHeredoc(text, at + 3);
            at = end < 0 ? at + 3 : end;
        } else {
            ++at;
        }
    }
    return text.size();
}

/// The length of the name of a server's tag at `at`, behind "<" or "</"; 0 if it isn't one.
qsizetype serverTagName(QByteArrayView text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && (isNameByte(text[end]) || text[end] == ':' || text[end] == '.'))
        ++end;
    const QByteArrayView name = text.sliced(at, end - at);
    if (name.isEmpty() || !isAsciiLetter(name.front()))
        return 0;
    const bool hasPrefix = name.indexOf(':') > 0;
    const bool isColdFusion = standsAt(name, 0, "cf") && name.size() > 2 && !name.contains('-');
    return hasPrefix || isColdFusion ? name.size() : 0;
}

/// Whether the tag is one of the namespaces that are part of pages.
bool isOfPage(QByteArrayView name)
{
    constexpr std::array<QByteArrayView, 7> prefixes{"svg:", "math:", "m:", "o:", "v:", "w:", "fb:"};
    return std::ranges::any_of(prefixes, [&](QByteArrayView prefix) { return standsAt(name, 0, prefix); });
}

qsizetype behindTag(QByteArrayView text, qsizetype at)
{
    const qsizetype limit = std::min(text.size(), at + longestServerTag);
    char quote = 0;
    for (; at < limit; ++at) {
        const char c = text[at];
        if (quote) {
            if (c == quote)
                quote = 0;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return at + 1;
        } else if (c == '<') {
            return at;
        }
    }
    return limit;
}

struct Found {
    qsizetype end = -1;
    bool isListed = true;
    bool isProgram = true;
};

Found atAngle(QByteArrayView text, qsizetype at, bool isXml)
{
    const QByteArrayView rest = text.sliced(at);
    if (rest.startsWith("<%")) {
        if (rest.startsWith("<%--"))
            return {behind(text, "--%>", at + 4), false};
        const char kind = rest.size() > 2 ? rest[2] : '\0';
        return {behind(text, "%>", at + 2), true, kind != '=' && kind != ':' && kind != '#'};
    }
    if (rest.startsWith("<?")) {
        const bool isPhp = standsAt(rest, 0, "<?php") || rest.startsWith("<?=");
        if (isPhp)
            return {behindPhp(text, at + 2), true, !rest.startsWith("<?=")};
        if (isXml)
            return {};
        const bool isInstruction = standsAt(rest, 0, "<?xml");
        return {isInstruction ? behind(text, "?>", at) : behindPhp(text, at + 2), !isInstruction};
    }
    if (rest.startsWith("<!--#"))
        return {behind(text, "-->", at)};
    if (isXml)
        return {};
    const qsizetype nameAt = at + (rest.startsWith("</") ? 2 : 1);
    const qsizetype length = serverTagName(text, nameAt);
    if (length == 0)
        return {};
    return {behindTag(text, nameAt + length), !isOfPage(text.sliced(nameAt, length))};
}

Found atBrace(QByteArrayView text, qsizetype at)
{
    const QByteArrayView rest = text.sliced(at, std::min(text.size() - at, longestTemplate));
    const bool isOutput = rest.startsWith("{{");
    const bool isTriple = rest.startsWith("{{{");
    const QByteArrayView closing = isTriple ? "}}}" : isOutput ? "}}" : "%}";
    if (!isOutput && !rest.startsWith("{%"))
        return {};
    const qsizetype end = rest.indexOf(closing, 2);
    if (end < 0)
        return {};
    const QByteArrayView content = rest.first(end).sliced(isTriple ? 3 : 2).trimmed();
    const bool isBlock = !content.isEmpty() && QByteArrayView("#/^>").contains(content.front());
    return {at + end + closing.size(), !content.startsWith('!'), !isOutput || isBlock || content == "else"};
}

} // namespace

CoveredText coverServerCode(QByteArray text, bool isXml)
{
    CoveredText covered{std::move(text)};
    const QByteArrayView source = covered.text;
    std::vector<ServerBlock> all;
    for (qsizetype at = 0; at < source.size();) {
        const char c = source[at];
        const Found found = c == '<' ? atAngle(source, at, isXml) : c == '{' ? atBrace(source, at) : Found{};
        if (found.end < 0) {
            ++at;
            continue;
        }
        all.push_back({at, found.end, found.isProgram});
        if (found.isListed)
            covered.blocks.push_back(all.back());
        at = found.end;
    }
    // The first write makes a copy if the caller has one, so that all reading comes before.
    char *const bytes = all.empty() ? nullptr : covered.text.data();
    for (const ServerBlock &block : std::as_const(all)) {
        std::replace_if(
            bytes + block.start, bytes + block.end, [](char c) { return c != '\n' && c != '\r'; }, CoveredText::cover);
    }
    return covered;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/pairtext.h"

#include "core/textparts.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

/// How many places that a start tag may begin at are tried.
constexpr int mostTries = 20;
/// How long a tag's name may be.
constexpr qsizetype longestName = 256;

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

constexpr bool isInWord(char c)
{
    return isAsciiLetter(c) || (c >= '0' && c <= '9') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool isInName(char c)
{
    return isInWord(c) || c == '-' || c == ':' || c == '.';
}

/// The name at the beginning of a text; empty if none begins there.
QByteArrayView nameAtStart(QByteArrayView text)
{
    const bool begins = !text.isEmpty() && (isInName(text.front()) && !(text.front() >= '0' && text.front() <= '9'))
        && text.front() != '-' && text.front() != '.';
    if (!begins)
        return {};
    const auto *const end = std::ranges::find_if_not(text.begin(), text.end(), isInName);
    return text.first(end - text.begin());
}

Qt::CaseSensitivity caseOf(MarkupRules rules)
{
    return rules == MarkupRules::Xml ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

} // namespace

char partnerOf(char32_t opener)
{
    switch (opener) {
    case U'(':
        return ')';
    case U'[':
        return ']';
    case U'{':
        return '}';
    case U'<':
        return '>';
    case U'"':
    case U'\'':
        return static_cast<char>(opener);
    default:
        return 0;
    }
}

bool closesBefore(char next)
{
    return next == 0 || isBlank(next) || QByteArrayView(")]}>,;:.<").contains(next);
}

bool closesQuote(char before, char next)
{
    return closesBefore(next) && !isInWord(before) && before != '"' && before != '\'' && before != '\\';
}

std::optional<StartTag> startTagBefore(QByteArrayView text, MarkupRules rules,
                                       const std::function<bool(qsizetype)> &isTag)
{
    if (!text.endsWith('>') || text.endsWith("/>"))
        return {};
    qsizetype begin = text.size();
    for (int i = 0; i < mostTries && begin > 0; ++i) {
        begin = text.lastIndexOf('<', begin - 1);
        if (begin < 0)
            break;
        const QByteArrayView tag = text.sliced(begin);
        const QByteArrayView name = nameAtStart(tag.sliced(1));
        const char behind = name.isEmpty() ? '\0' : tag[1 + name.size()];
        if (!isBlank(behind) && behind != '>')
            continue;
        // An element without content isn't around the place behind its tag.
        const auto elements = OpenElements(rules).around({tag, {}}, tag.size(), tag.size() + 1);
        const bool isWhole =
            elements && elements->size() == 1 && elements->front().begin == 0 && elements->front().tagEnd == tag.size();
        if (isWhole && isTag(begin))
            return StartTag{begin, name.toByteArray()};
    }
    return {};
}

QByteArray endTagBefore(QByteArrayView text)
{
    if (!text.endsWith('>'))
        return {};
    const qsizetype begin = text.last(std::min(text.size(), longestName)).lastIndexOf("</");
    if (begin < 0)
        return {};
    const QByteArrayView inside = text.last(std::min(text.size(), longestName)).sliced(begin + 2).chopped(1);
    const QByteArrayView name = nameAtStart(inside);
    const bool isTag = std::ranges::all_of(inside.sliced(name.size()), isBlank);
    return isTag ? name.toByteArray() : QByteArray();
}

bool beginsWithEndTag(QByteArrayView text, QByteArrayView name, MarkupRules rules)
{
    if (!text.startsWith("</"))
        return false;
    return nameAtStart(text.sliced(2)).compare(name, caseOf(rules)) == 0 && !name.isEmpty();
}

qsizetype openBraceBefore(QByteArrayView text, const std::function<bool(qsizetype)> &isCode)
{
    int depth = 1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        if ((text[i] != '{' && text[i] != '}') || !isCode(i))
            continue;
        depth += text[i] == '}' ? 1 : -1;
        if (depth == 0)
            return i;
    }
    return -1;
}

bool keepsBlanks(QByteArrayView name)
{
    static constexpr std::array kept{QByteArrayView("pre"), QByteArrayView("textarea"), QByteArrayView("listing"),
                                     QByteArrayView("plaintext"), QByteArrayView("xmp")};
    return std::ranges::any_of(kept, [&](QByteArrayView each) { return each.compare(name, Qt::CaseInsensitive) == 0; });
}

QByteArrayView indentationOf(QByteArrayView line)
{
    const auto *const end =
        std::ranges::find_if_not(line.begin(), line.end(), [](char c) { return c == ' ' || c == '\t'; });
    return line.first(end - line.begin());
}

} // namespace zephira

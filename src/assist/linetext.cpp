// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/linetext.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

void chopBlanks(QByteArray &text)
{
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
}

} // namespace

QByteArray joinedLines(QByteArrayView lines)
{
    QByteArray joined;
    joined.reserve(lines.size());
    qsizetype end = lines.size();
    while (end > 0 && isLineEnd(lines[end - 1]))
        --end;
    for (qsizetype at = 0; at < end; ++at) {
        if (!isLineEnd(lines[at])) {
            joined.append(lines[at]);
            continue;
        }
        chopBlanks(joined);
        while (at + 1 < end && (isLineEnd(lines[at + 1]) || isBlank(lines[at + 1])))
            ++at;
        if (!joined.isEmpty() && at + 1 < end)
            joined.append(' ');
    }
    return joined.append(lines.sliced(end));
}

QByteArray withoutTrailingBlanks(QByteArrayView lines)
{
    QByteArray kept;
    kept.reserve(lines.size());
    qsizetype start = 0;
    while (start < lines.size()) {
        const auto *const found = std::ranges::find_if(lines.begin() + start, lines.end(), isLineEnd);
        const qsizetype end = found - lines.begin();
        qsizetype last = end;
        while (last > start && isBlank(lines[last - 1]))
            --last;
        kept.append(lines.sliced(start, last - start));
        start = end;
        while (start < lines.size() && isLineEnd(lines[start]))
            kept.append(lines[start++]);
    }
    return kept;
}

} // namespace zephira

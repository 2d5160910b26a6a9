// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/linetext.h"

#include <QCollator>

#include <algorithm>
#include <vector>

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

/// A line's text and its end.
struct Line {
    QByteArrayView text;
    QByteArrayView end;
};

std::vector<Line> linesOf(QByteArrayView text)
{
    std::vector<Line> lines;
    qsizetype start = 0;
    while (start < text.size()) {
        const auto *const found = std::ranges::find_if(text.begin() + start, text.end(), isLineEnd);
        const qsizetype end = found - text.begin();
        qsizetype next = end;
        if (end < text.size())
            next += text.sliced(end).startsWith("\r\n") ? 2 : 1;
        lines.push_back({text.sliced(start, end - start), text.sliced(end, next - end)});
        start = next;
    }
    return lines;
}

/// The collator knows no order of numbers in the language "C".
QCollator collatorOf(const QLocale &locale)
{
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
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

QByteArray sortedLines(QByteArrayView text, const QLocale &locale)
{
    struct Sorted {
        QCollatorSortKey key;
        QByteArrayView text;
    };
    const QCollator collator = collatorOf(locale);
    const std::vector<Line> lines = linesOf(text);
    std::vector<Sorted> order;
    order.reserve(lines.size());
    for (const Line &line : lines)
        order.push_back({collator.sortKey(QString::fromUtf8(line.text)), line.text});
    std::ranges::stable_sort(order, [](const Sorted &a, const Sorted &b) { return a.key < b.key; });
    QByteArray sorted;
    sorted.reserve(text.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        sorted.append(order[i].text).append(lines[i].end);
    return sorted;
}

QByteArray swappedLines(QByteArrayView first, QByteArrayView second)
{
    const auto endOf = [](QByteArrayView lines) {
        const qsizetype size = lines.endsWith("\r\n") ? 2 : !lines.isEmpty() && isLineEnd(lines.back()) ? 1 : 0;
        return lines.last(size);
    };
    const QByteArrayView between = endOf(first);
    const QByteArrayView last = endOf(second);
    return second.chopped(last.size()).toByteArray().append(between).append(first.chopped(between.size())).append(last);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/textchange.h"

#include <algorithm>

namespace zephira {

namespace {

/// Whether the two characters on both sides of a place belong together.
bool isInsidePair(QStringView text, qsizetype place)
{
    if (place <= 0 || place >= text.size())
        return false;
    const QChar before = text[place - 1];
    const QChar after = text[place];
    return (before == u'\r' && after == u'\n') || (before.isHighSurrogate() && after.isLowSurrogate());
}

} // namespace

bool areInOrder(const TextChanges &changes, qsizetype length)
{
    qsizetype done = 0;
    return std::ranges::all_of(changes, [&](const TextChange &change) {
        const bool isInOrder = change.begin >= done && change.end >= change.begin && change.end <= length;
        done = change.end;
        return isInOrder;
    });
}

QString withChanges(QStringView text, const TextChanges &changes)
{
    QString changed;
    changed.reserve(text.size());
    qsizetype done = 0;
    for (const TextChange &change : changes) {
        changed += text.sliced(done, change.begin - done);
        changed += change.text;
        done = change.end;
    }
    changed += text.sliced(done);
    return changed;
}

TextChange withoutSameEnds(QStringView text, const TextChange &change)
{
    const QStringView before = text.sliced(change.begin, change.end - change.begin);
    const QStringView after = change.text;
    const qsizetype most = std::min(before.size(), after.size());
    qsizetype first = 0;
    while (first < most && before[first] == after[first])
        ++first;
    while (isInsidePair(before, first) || isInsidePair(after, first))
        --first;
    qsizetype last = 0;
    while (last < most - first && before[before.size() - 1 - last] == after[after.size() - 1 - last])
        ++last;
    while (isInsidePair(before, before.size() - last) || isInsidePair(after, after.size() - last))
        --last;
    return {change.begin + first, change.end - last, after.sliced(first, after.size() - first - last).toString()};
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary changes of a text: without what stays the same, a change makes the same text.
#include "core/textchange.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(textchange)
{
    if (size < 2)
        return 0;
    QString text = zephira::fuzz::inputText(data + 2, size - 2);
    const QString inserted = zephira::fuzz::takenLine(text);
    const qsizetype begin = text.size() * data[0] / 255;
    const qsizetype end = begin + (text.size() - begin) * data[1] / 255;
    const TextChange change{begin, end, inserted};
    check(areInOrder({change}, text.size()));
    const TextChange less = withoutSameEnds(text, change);
    check(areInOrder({less}, text.size()) && less.begin >= begin && less.end <= end);
    check(withChanges(text, {less}) == withChanges(text, {change}));
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lines: sorting and swapping keep all of them, and blanks go only where they may.
#include "assist/casetext.h"
#include "assist/linetext.h"
#include "files/lineends.h"
#include "fuzz/fuzztarget.h"

#include <QLocale>

using namespace zephira;

FUZZ_TARGET(linetext)
{
    const QByteArray text = zephira::fuzz::inputBytes(data, size);
    const QByteArray sorted = sortedLines(text, QLocale::c());
    QByteArray one = text;
    QByteArray other = sorted;
    std::ranges::sort(one);
    std::ranges::sort(other);
    check(one == other && sortedLines(sorted, QLocale::c()) == sorted);
    const QByteArray without = withoutTrailingBlanks(text);
    check(without.size() <= text.size() && withoutTrailingBlanks(without) == without);
    check(without.count('\n') == text.count('\n') && without.count('\r') == text.count('\r'));
    check(joinedLines(text).size() <= text.size());
    const QByteArray lines = toLineEnds(text, LineEnds::Lf);
    const qsizetype border = lines.indexOf('\n') + 1;
    if (border > 0 && border < lines.size()) {
        const QByteArray swapped = swappedLines(lines.first(border), lines.sliced(border));
        check(swapped.size() == lines.size());
    }
    if (QString::fromUtf8(text).toUtf8() != text)
        check(upperCase(text) == text && lowerCase(text) == text && capitalised(text) == text);
    else
        check(lowerCase(lowerCase(text)) == lowerCase(text));
    return 0;
}

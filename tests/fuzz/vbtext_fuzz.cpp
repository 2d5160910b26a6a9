// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary texts: the text functions agree with one another, and a number that was read is written so that it reads
// back.
#include "core/errorstyles.h"
#include "core/vbtext.h"
#include "fuzz/fuzztarget.h"

#include <cmath>

using namespace zephira;

FUZZ_TARGET(vbtext)
{
    QString text = zephira::fuzz::inputText(data, size);
    const QString find = zephira::fuzz::takenLine(text);
    const qsizetype place = InStr(text, find);
    check(place >= 0 && (place == 0 || Mid(text, place, find.size()) == find));
    check((place > 0) == (!text.isEmpty() && text.contains(find)));
    const qsizetype last = InStrRev(text, find);
    check(last >= place && (last == 0 || Mid(text, last, find.size()) == find || find.isEmpty()));
    check(LCase(text).size() == text.size() && UCase(text).size() == text.size());
    check(LTrim(RTrim(text)) == Trim(text) && !Trim(text).startsWith(u' ') && !Trim(text).endsWith(u' '));
    check(Left(text, place) + Mid(text, place + 1) == text);
    double number = 0;
    if (endingQuietly([&] { number = CDbl(find); })) {
        check(std::isfinite(number));
        const double back = CDbl(CStr(number));
        check(std::abs(back - number) <= 1e-14 * std::abs(number) || std::abs(number) < 1e-290);
        endingQuietly([&] { check(CLng(number) == std::nearbyint(number)); });
        endingQuietly([&] { check(CInt(number) == std::nearbyint(number)); });
        if (std::abs(number) < 1e15)
            check(!Format(number, u"### ### ###.##").isEmpty());
    }
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lines: each color found lies in the line and is one by itself, and is written in its notation so that it
// reads as the new color.
#include "assist/colourtext.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(colourtext)
{
    const QByteArray line = zephira::fuzz::inputBytes(data, size);
    const QColor other(size > 0 ? data[0] : 0, size > 1 ? data[1] : 0, size > 2 ? data[2] : 0);
    qsizetype end = 0;
    for (const ColourText &found : coloursIn(line)) {
        check(found.start >= end && found.end > found.start && found.end <= line.size());
        end = found.end;
        const QByteArrayView text = QByteArrayView(line).sliced(found.start, found.end - found.start);
        check(colourOf(text) == found.colour);
        const std::optional<QColor> read = colourOf(rewritten(text.toByteArray(), other));
        // Percentages and degrees are whole numbers.
        check(read && std::abs(read->red() - other.red()) < 6 && std::abs(read->green() - other.green()) < 6
              && std::abs(read->blue() - other.blue()) < 6);
    }
    return 0;
}

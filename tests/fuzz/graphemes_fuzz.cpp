// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lines: the borders of characters agree in both directions.
#include "core/graphemes.h"
#include "fuzz/fuzztarget.h"

using namespace zephira;

FUZZ_TARGET(graphemes)
{
    const QString text = zephira::fuzz::inputText(data, size);
    const QByteArray line = text.toUtf8();
    qsizetype before = 0;
    int count = 0;
    for (qsizetype at = 0; at < line.size() && count < 200; ++count) {
        const qsizetype behind = graphemeBehind(line, at);
        check(behind > at && behind <= line.size());
        check(graphemeBefore(line, behind) == at && graphemeStart(line, at) == at && graphemeEnd(line, at) == at);
        for (qsizetype inside = at + 1; inside < behind; ++inside) {
            if ((line[inside] & 0xc0) != 0x80)
                check(graphemeStart(line, inside) == at && graphemeEnd(line, inside) == behind);
        }
        before = at;
        at = behind;
    }
    check(before <= line.size() && graphemeBehind(line, line.size()) == line.size() && graphemeBefore(line, 0) == 0);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary lines with styles: stretches lie in the line and are of one style, and cutting long runs changes no style
// but to its twin.
#include "editor/bidistretches.h"
#include "editor/longruns.h"
#include "files/utf8.h"
#include "fuzz/fuzztarget.h"

#include <vector>

using namespace zephira;

FUZZ_TARGET(stretches)
{
    const QByteArray line = zephira::fuzz::inputText(data, size).toUtf8();
    std::vector<unsigned char> styles;
    // A character has one style.
    for (qsizetype i = 0; i < line.size(); ++i)
        styles.push_back((line[i] & 0xc0) == 0x80 ? styles.back() : static_cast<unsigned char>(i / 7 % 4));
    qsizetype end = 0;
    for (const BidiStretch &stretch : bidiStretches(line, styles)) {
        check(stretch.start >= end && stretch.end > stretch.start && stretch.end <= line.size());
        check(isValidUtf8(QByteArrayView(line).sliced(stretch.start, stretch.end - stretch.start)) || size > 1000);
        for (qsizetype i = stretch.start; i < stretch.end; ++i)
            check(styles[static_cast<std::size_t>(i)] == stretch.style || (line[i] & 0xc0) == 0x80);
        end = stretch.end;
    }
    const std::vector<unsigned char> before = styles;
    breakLongRuns(line, styles);
    for (std::size_t i = 0; i < styles.size(); ++i)
        check(withoutTwin(styles[i]) == before[i]);
    return 0;
}

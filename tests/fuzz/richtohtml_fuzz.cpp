// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary runs of formatted text: the markup is that of the rules applied to one character after another.
#include "fuzz/fuzztarget.h"
#include "tools/plainrichtohtml.h"

FUZZ_TARGET(richtohtml)
{
    using namespace zephira;
    // Each run takes four bytes: switches, font, colour, and a length.
    std::vector<FormattedRun> runs;
    for (std::size_t at = 0; at + 4 <= size; at += 4) {
        const unsigned char bits = data[at];
        runs.push_back({QString(data[at + 3] % 8, QChar(ushort{data[at + 3]})),
                        {.alignment = static_cast<CharacterFormat::Alignment>(bits % 3),
                         .bold = (bits & 8) != 0,
                         .underline = (bits & 16) != 0,
                         .italic = (bits & 32) != 0,
                         .strikethrough = (bits & 64) != 0,
                         .fontName = QString(data[at + 1] % 4, u'f'),
                         .colour = data[at + 2] * 0x010307U}});
    }
    check(richToHtml(runs) == plainRichToHtml(runs));
    return 0;
}

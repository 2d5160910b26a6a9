// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/longruns.h"

namespace zephira {

namespace {

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

} // namespace

void breakLongRuns(QByteArrayView text, std::span<unsigned char> styles)
{
    unsigned char style = 0;
    bool isTwin = false;
    for (size_t i = 0; i < styles.size(); ++i) {
        if (i == 0 || styles[i] != style) {
            style = styles[i];
            isTwin = false;
        } else {
            const auto at = static_cast<qsizetype>(i);
            // The shape or direction of a non-ASCII character may depend on the text before the space.
            if (text[at - 1] == ' ' && text[at] != ' ' && isAscii(text[at]))
                isTwin = !isTwin;
        }
        if (isTwin && style < twinDistance)
            styles[i] = static_cast<unsigned char>(style + twinDistance);
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary files: the page is that of the lines one by one.
#include "files/textfile.h"
#include "fuzz/fuzztarget.h"
#include "tools/plaintextpage.h"

FUZZ_TARGET(textpage)
{
    using namespace zephira;
    const QByteArray text =
        decodeText(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))).utf8;
    // Qt takes a second mark for the first one and drops it.
    if (text.startsWith("\xef\xbb\xbf"))
        return 0;
    const TextPageLook look{.title = QString::fromUtf8(text.left(10)), .textColour = QString::fromUtf8(text.right(3))};
    check(textPage(text, look) == plainTextPage(QString::fromUtf8(text), look));
    return 0;
}

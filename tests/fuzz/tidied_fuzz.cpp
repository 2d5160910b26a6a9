// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes as Tidy would return them, in each encoding that can be chosen: ASCII reads as itself, and no byte
// is read as more than one character.
#include "fuzz/fuzztarget.h"
#include "tools/tidyoptions.h"

#include <QStringList>

using namespace zephira;

FUZZ_TARGET(tidied)
{
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const bool isAscii = std::ranges::all_of(bytes, [](char c) { return c > 0; });
    for (const QString &encoding : tidyCharEncodings()) {
        const QString text = decodeTidied(bytes, encoding);
        check(text.size() <= bytes.size() + 1);
        if (isAscii && !encoding.startsWith(u"utf16") && !encoding.startsWith(u"iso2022") && !bytes.contains(27))
            check(text == QString::fromLatin1(bytes));
    }
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary markup: the pass that removes font and center tags gives the same result as the plain expression, and
// removes nothing when it runs again over markup without such names.
#include "fuzz/fuzztarget.h"
#include "tools/fonttags.h"
#include "tools/plainfonttags.h"

FUZZ_TARGET(fonttags)
{
    using namespace zephira;
    const QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const QByteArray without = withoutFontTags(bytes);
    check(without.size() <= bytes.size());
    if (!bytes.toLower().contains("font") && !bytes.toLower().contains("center"))
        check(without == bytes);
    // For a long text the expression takes more time than the fuzzer allows.
    const QString text = QString::fromUtf8(bytes);
    if (size < 2000 && text.toUtf8() == bytes)
        check(QString::fromUtf8(without) == plainWithoutFontTags(text));
    return 0;
}

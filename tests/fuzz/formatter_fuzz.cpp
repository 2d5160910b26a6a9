// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: the formatter gives the same result as the straightforward implementation.
#include "fuzz/fuzztarget.h"
#include "tools/plainformatter.h"
#include "tools/sourceformatter.h"

#include <cstdlib>

FUZZ_TARGET(formatter)
{
    using namespace zephira;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (TrimAroundTags(text) != plainTrimAroundTags(text) || Compact(text) != plainCompact(text)
        || Simple(text) != plainSimple(text))
        std::abort();
    // For a long text the straightforward implementation takes more time than the fuzzer allows.
    if (size < 20000 && Hierarchical(text) != plainHierarchical(text))
        std::abort();
    return 0;
}

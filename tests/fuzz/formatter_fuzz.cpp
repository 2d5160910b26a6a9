// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of any kind: the formatter gives what the one written plainly gives.
#include "tools/plainformatter.h"
#include "tools/sourceformatter.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    using namespace zephira;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (TrimAroundTags(text) != plainTrimAroundTags(text) || Compact(text) != plainCompact(text)
        || Simple(text) != plainSimple(text))
        std::abort();
    // Written plainly, the levels of a long text take more time than a fuzzer gives.
    if (size < 20000 && Hierarchical(text) != plainHierarchical(text))
        std::abort();
    return 0;
}

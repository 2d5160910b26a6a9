// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: the link targets equal those of the straightforward search.
#include "fuzz/fuzztarget.h"
#include "tools/linktargets.h"
#include "tools/plainlinktargets.h"

FUZZ_TARGET(linktargets)
{
    using namespace zephira;
    // For a long text the straightforward search takes more time than the fuzzer allows.
    if (size > 4000)
        return 0;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    check(linkTargets(text).targets == plainLinkTargets(text));
    return 0;
}

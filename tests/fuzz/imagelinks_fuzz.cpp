// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: the images found equal those of the straightforward walk, and both fail for the same pages.
#include "core/errorstyles.h"
#include "fuzz/fuzztarget.h"
#include "tools/imagelinks.h"
#include "tools/plainimagelinks.h"

FUZZ_TARGET(imagelinks)
{
    using namespace zephira;
    // For a long text the straightforward walk takes more time than the fuzzer allows.
    if (size > 2000)
        return 0;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QStringList urls;
    QStringList plain;
    const bool found = endingQuietly([&] { LinksFromHTML(urls, text); });
    check(endingQuietly([&] { plain = plainLinksFromHTML(text); }) == found);
    check(!found || urls.sliced(1) == plain);
    check(URLFromTag(text) == plainURLFromTag(text));
    return 0;
}

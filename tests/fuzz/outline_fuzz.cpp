// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages: the outline equals that of the straightforward scan, leaf by leaf and error by error.
#include "core/errorstyles.h"
#include "fuzz/fuzztarget.h"
#include "panes/plainoutline.h"

#include <algorithm>
#include <cstdlib>

using namespace zephira;

namespace {

template<typename Scan>
QString errorOf(Scan scan)
{
    try {
        scan();
    } catch (const HandlerError &error) {
        return error.description;
    }
    return {};
}

bool same(const OutlineLeaf &one, const OutlineLeaf &other)
{
    return one.group == other.group && one.caption == other.caption && one.tagText == other.tagText
        && one.position == other.position;
}

} // namespace

FUZZ_TARGET(outline)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    std::vector<OutlineLeaf> leaves;
    const QString error =
        errorOf([&] { scanOutline(text, [&leaves](OutlineLeaf &&leaf) { leaves.push_back(std::move(leaf)); }); });
    PlainOutline plain;
    if (errorOf([&] { plain.parse(text); }) != error)
        std::abort();
    if (!std::ranges::equal(leaves, plain.leaves, same))
        std::abort();
    return 0;
}

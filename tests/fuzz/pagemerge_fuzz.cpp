// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages and edits, with a plain comparison in the place of the engine: each try lies within the source, and
// what the ladder gives out reads as the edited page.
#include "fuzz/fuzztarget.h"
#include "web/designer/mergeladder.h"
#include "web/designer/pagemerge.h"
#include "web/designer/pagetokens.h"

#include <QStringList>

#include <vector>

using namespace zephira;

namespace {

std::vector<int> keysOf(QStringView page, TokenKeys &keys)
{
    std::vector<int> found;
    for (const PageToken &token : pageTokens(page, keys))
        found.push_back(token.key);
    return found;
}

bool readAlike(QStringView one, QStringView other)
{
    TokenKeys keys;
    return keysOf(one, keys) == keysOf(other, keys);
}

} // namespace

FUZZ_TARGET(pagemerge)
{
    // Three pages: the source, what the engine made of it, and what the user made of that. Without the second the engine
    // changed nothing.
    const QStringList pages = zephira::fuzz::inputText(data, size).split(u'\0');
    if (pages.size() < 2)
        return 0;
    const QString &source = pages[0];
    const QString &edited = pages[1];
    const QString &loaded = pages.size() > 2 ? pages[2] : source;
    PageAlignment alignment(source, loaded);
    const PageMerge merge(alignment, edited, [](QStringView markup) { return markup.toString(); });
    int tries = 0;
    const std::optional<TextChanges> changes = mergedByLadder(merge, [&](const MergeTry &each) {
        check(areInOrder(each.changes, source.size()));
        const QString wanted = each.target ? withChanges(loaded, {*each.target}) : edited;
        if (++tries > 50)
            return MergeVerdict::Stop;
        return readAlike(withChanges(source, each.changes), wanted) ? MergeVerdict::Right : MergeVerdict::Wrong;
    });
    if (!changes)
        return 0;
    check(areInOrder(*changes, source.size()));
    if (changes->empty())
        check(readAlike(loaded, edited));
    return 0;
}

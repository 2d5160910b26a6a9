// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary filters of file dialogs: each has a name and patterns, and a path keeps what was typed.
#include "desktop/filefilter.h"
#include "fuzz/fuzztarget.h"

#include <QStringList>

using namespace zephira;

FUZZ_TARGET(filefilter)
{
    QString filter = zephira::fuzz::inputText(data, size);
    const QString path = u'/' + zephira::fuzz::takenLine(filter);
    for (const QString &name : nameFilters(filter)) {
        check(name.contains(u'(') && name.endsWith(u')'));
        check(withSuffixOf(name, path).startsWith(path));
    }
    check(withSuffixOf(filter, path).startsWith(path));
    check(nameFilters(filter).size() <= filter.count(u'|') / 2 + 1);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages of the handbook and pictures: words are small and have no markup, a size is that of a picture.
#include "fuzz/fuzztarget.h"
#include "handbook/handbook.h"

#include <QSize>
#include <QStringList>

using namespace zephira;

FUZZ_TARGET(handbook)
{
    const QString page = zephira::fuzz::inputText(data, size);
    check(pageTitle(page).size() <= page.size());
    for (const QString &word : wordsOf(page))
        check(!word.isEmpty() && !word.contains(u'<') && word == word.toLower());
    const QSize picture = pictureSize(zephira::fuzz::inputBytes(data, size));
    check(picture.isEmpty() || size >= 24);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages and tags: a tag is found where it stands, and nowhere else.
#include "fuzz/fuzztarget.h"
#include "panes/tagplace.h"

using namespace zephira;

FUZZ_TARGET(tagplace)
{
    QString text = zephira::fuzz::inputText(data, size);
    const QString tag = zephira::fuzz::takenLine(text);
    const qsizetype position = size ? text.size() * data[0] / 255 : 0;
    const QString beginning = u'<' + tag;
    const QString whole = beginning + u'>';
    const std::optional<qsizetype> place = findTag(text, tag, position);
    const bool isThere = QStringView(text).sliced(position).startsWith(beginning);
    check(place.has_value() == (isThere || text.contains(whole)));
    check(!isThere || place == position);
    if (!place || isThere)
        return 0;
    check(QStringView(text).sliced(*place).startsWith(whole));
    // There is no other one that is nearer.
    const qsizetype distance = std::abs(*place - position);
    const qsizetype from = std::max<qsizetype>(position - distance + 1, 0);
    check(!QStringView(text).mid(from, position + distance + tag.size() + 1 - from).contains(whole));
    return 0;
}

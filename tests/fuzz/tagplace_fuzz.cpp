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
    const std::optional<qsizetype> place = findTag(text, tag, position);
    check(place.has_value() == text.contains(u'<' + tag + u'>'));
    if (!place)
        return 0;
    check(QStringView(text).sliced(*place).startsWith(u'<' + tag + u'>'));
    const qsizetype distance = std::abs(*place - position);
    const qsizetype before = std::max<qsizetype>(position - distance + 1, 0);
    check(distance == 0
          || !QStringView(text)
                  .sliced(before, std::min(text.size(), position + distance + tag.size() + 1) - before)
                  .contains(u'<' + tag + u'>'));
    return 0;
}

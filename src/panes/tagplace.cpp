// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/tagplace.h"

#include "core/editingcontrol.h"

#include <QStringBuilder>

#include <algorithm>

namespace zephira {

namespace {

struct LineAndColumn {
    int line = 0;
    int column = 0;
};

/// Line and column, both 0-based, of an index, which must not be inside a line end.
LineAndColumn placeOf(QStringView text, qsizetype index)
{
    LineAndColumn place;
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < index; ++i) {
        const bool endsLine = text[i] == u'\n' || (text[i] == u'\r' && !(i + 1 < text.size() && text[i + 1] == u'\n'));
        if (endsLine) {
            ++place.line;
            lineStart = i + 1;
        }
    }
    place.column = static_cast<int>(index - lineStart);
    return place;
}

} // namespace

std::optional<qsizetype> findTag(const QString &text, const QString &tagText, qsizetype position)
{
    const QString beginning = u'<' % tagText;
    position = std::clamp<qsizetype>(position, 0, text.size());
    // A title's text may be cut off, so its end is compared only if the page has changed.
    if (QStringView(text).sliced(position).startsWith(beginning))
        return position;
    const QString tag = beginning % u'>';
    const qsizetype after = text.indexOf(tag, position);
    const qsizetype before = text.lastIndexOf(tag, position);
    if (after < 0 && before < 0)
        return {};
    const bool isBeforeNearer = after < 0 || (before >= 0 && position - before < after - position);
    return isBeforeNearer ? before : after;
}

bool selectTag(EditingControl &editor, const QString &tagText, qsizetype position)
{
    const QString text = editor.text();
    const std::optional<qsizetype> start = findTag(text, tagText, position);
    if (!start)
        return false;
    const qsizetype behindText = *start + 1 + tagText.size();
    const bool isClosed = behindText < text.size() && text[behindText] == u'>';
    const LineAndColumn from = placeOf(text, *start);
    const LineAndColumn to = placeOf(text, behindText + (isClosed ? 1 : 0));
    editor.select({from.line, from.column, to.line, to.column});
    return true;
}

} // namespace zephira

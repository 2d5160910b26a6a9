// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/tagplace.h"

#include "core/editingcontrol.h"
#include "core/linecolumn.h"

#include <QStringBuilder>

#include <algorithm>

namespace zephira {

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
    const LineColumn from = lineColumnOf(text, *start);
    const LineColumn to = lineColumnOf(text, behindText + (isClosed ? 1 : 0));
    editor.select({from.line, from.column, to.line, to.column});
    return true;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/linecolumn.h"

#include <algorithm>

namespace zephira {

namespace {

/// The index of the next line end, or the text's end.
qsizetype lineEndFrom(QStringView text, qsizetype index)
{
    const auto rest = text.sliced(index);
    const auto end = std::ranges::find_if(rest, [](QChar c) { return c == u'\n' || c == u'\r'; });
    return index + (end - rest.begin());
}

/// The index behind the line end at an index.
qsizetype behindLineEnd(QStringView text, qsizetype end)
{
    return end + (text.sliced(end).startsWith(u"\r\n") ? 2 : 1);
}

} // namespace

LineColumn lineColumnOf(QStringView text, qsizetype index)
{
    LineColumn place;
    qsizetype lineStart = 0;
    for (;;) {
        const qsizetype end = lineEndFrom(text, lineStart);
        if (end >= text.size() || behindLineEnd(text, end) > index)
            break;
        lineStart = behindLineEnd(text, end);
        ++place.line;
    }
    place.column = static_cast<int>(index - lineStart);
    return place;
}

qsizetype indexOf(QStringView text, const LineColumn &place)
{
    qsizetype lineStart = 0;
    for (int line = 0; line < place.line; ++line) {
        const qsizetype end = lineEndFrom(text, lineStart);
        if (end >= text.size())
            return text.size();
        lineStart = behindLineEnd(text, end);
    }
    return std::min(lineStart + place.column, lineEndFrom(text, lineStart));
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/pairs/commenttext.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

constexpr bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

/// What must not stand in a comment, between two bytes of which something is put that makes it harmless: once more for
/// each time that the text is put into a comment.
struct Escape {
    QByteArrayView first;
    QByteArrayView second;
    /// Stands in the place of `second`.
    QByteArrayView instead;
    /// Is put in front of the rest of `instead` for every further time, behind its first `kept` bytes.
    QByteArrayView again;
    qsizetype kept = 0;
};

constexpr Escape markupEscape{"-", "-", "&#45;", "amp;", 1};
constexpr Escape codeEscape{"*", "/", "\\/", "\\", 0};

const Escape *escapeOf(const CommentMarks &marks)
{
    return marks.close == "-->" ? &markupEscape : marks.close == "*/" ? &codeEscape : nullptr;
}

/// The number of times that `second` at a place was escaped, 0 for itself; -1 if something else is there.
int timesEscaped(QByteArrayView text, qsizetype at, const Escape &escape)
{
    if (text.sliced(at).startsWith(escape.second))
        return 0;
    const QByteArrayView kept = escape.instead.first(escape.kept);
    if (!text.sliced(at).startsWith(kept))
        return -1;
    int times = 1;
    qsizetype behind = at + kept.size();
    while (text.sliced(behind).startsWith(escape.again)
           && !text.sliced(behind).startsWith(escape.instead.sliced(escape.kept))) {
        ++times;
        behind += escape.again.size();
    }
    return text.sliced(behind).startsWith(escape.instead.sliced(escape.kept)) ? times : -1;
}

/// Escapes once more, or once less, and appends the changes, moved by `offset`.
void addEscapes(ByteChanges &changes, QByteArrayView text, qsizetype offset, const CommentMarks &marks, bool more)
{
    const Escape *escape = escapeOf(marks);
    if (!escape)
        return;
    qsizetype at = text.indexOf(escape->first);
    while (at >= 0) {
        const qsizetype second = at + escape->first.size();
        const int times = timesEscaped(text, second, *escape);
        qsizetype next = second;
        if (times == 0 && more) {
            changes.push_back({offset + second, escape->second.size(), escape->instead.toByteArray()});
            next = second + escape->second.size();
        } else if (times > 0 && more) {
            changes.push_back({offset + second + escape->kept, 0, escape->again.toByteArray()});
        } else if (times == 1) {
            changes.push_back({offset + second, escape->instead.size(), escape->second.toByteArray()});
            next = second + escape->instead.size();
        } else if (times > 1) {
            changes.push_back({offset + second + escape->kept, escape->again.size(), {}});
        }
        at = text.indexOf(escape->first, next);
    }
}

struct Line {
    qsizetype start = 0;
    qsizetype end = 0;
    qsizetype indent = 0;
};

std::vector<Line> linesOf(QByteArrayView text)
{
    std::vector<Line> lines;
    qsizetype start = 0;
    while (start <= text.size()) {
        const auto *const found = std::ranges::find_if(text.begin() + start, text.end(), isLineEnd);
        const qsizetype end = found - text.begin();
        qsizetype indent = 0;
        while (start + indent < end && isBlank(text[start + indent]))
            ++indent;
        lines.push_back({start, end, indent});
        start = end + (text.sliced(end).startsWith("\r\n") ? 2 : 1);
    }
    return lines;
}

} // namespace

ByteChanges intoComment(QByteArrayView text, const CommentMarks &marks)
{
    ByteChanges changes{{0, 0, marks.open + ' '}};
    addEscapes(changes, text, 0, marks, true);
    changes.push_back({text.size(), 0, ' ' + marks.close, false});
    return changes;
}

std::optional<ByteChanges> withoutComment(QByteArrayView text, const CommentMarks &marks)
{
    const qsizetype close = text.indexOf(marks.close, marks.open.size());
    if (!text.startsWith(marks.open) || close < 0 || close + marks.close.size() != text.size())
        return {};
    qsizetype start = marks.open.size();
    qsizetype end = close;
    if (start < end && text[start] == ' ')
        ++start;
    if (start < end && text[end - 1] == ' ')
        --end;
    ByteChanges changes{{0, start, {}}};
    addEscapes(changes, text.sliced(start, end - start), start, marks, false);
    changes.push_back({end, text.size() - end, {}, false});
    return changes;
}

ByteChanges toggledLines(QByteArrayView text, QByteArrayView mark)
{
    std::vector<Line> lines = linesOf(text);
    if (lines.size() > 1)
        std::erase_if(lines, [](const Line &line) { return line.start + line.indent == line.end; });
    const auto isMarked = [&](const Line &line) { return text.sliced(line.start + line.indent).startsWith(mark); };
    ByteChanges changes;
    if (!lines.empty() && std::ranges::all_of(lines, isMarked)) {
        for (const Line &line : lines) {
            const qsizetype at = line.start + line.indent;
            const bool blank = at + mark.size() < line.end && text[at + mark.size()] == ' ';
            changes.push_back({at, mark.size() + (blank ? 1 : 0), {}});
        }
        return changes;
    }
    // All marks are in one column if the lines begin with the same blanks.
    qsizetype common = lines.empty() ? 0 : lines.front().indent;
    for (const Line &line : lines) {
        qsizetype same = 0;
        while (same < std::min(common, line.indent) && text[line.start + same] == text[lines.front().start + same])
            ++same;
        common = same;
    }
    for (const Line &line : lines)
        changes.push_back({line.start + common, 0, mark.toByteArray() + ' '});
    return changes;
}

std::optional<ByteRange> commentAround(QByteArrayView text, qsizetype place, const CommentMarks &marks)
{
    if (marks.open.isEmpty())
        return {};
    // The place may be within the opening mark.
    qsizetype open = text.lastIndexOf(marks.open, place);
    if (open < 0)
        return {};
    const qsizetype close = text.indexOf(marks.close, open + marks.open.size());
    if (close < 0 || close + marks.close.size() <= place)
        return {};
    return ByteRange{open, close + marks.close.size()};
}

QByteArray changedText(QByteArrayView text, const ByteChanges &changes)
{
    QByteArray changed;
    qsizetype done = 0;
    for (const ByteChange &change : changes) {
        changed.append(text.sliced(done, change.at - done)).append(change.text);
        done = change.at + change.size;
    }
    return changed.append(text.sliced(done));
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidyplaces.h"

#include "core/textparts.h"

#include <algorithm>
#include <numeric>

namespace zephira {

namespace {

constexpr int tabWidth = 8;
/// A tag that is longer isn't selected as a whole.
constexpr qsizetype longestTag = 2000;

bool isContinuation(char byte)
{
    constexpr unsigned char mask = 0xC0;
    constexpr unsigned char continuation = 0x80;
    return (static_cast<unsigned char>(byte) & mask) == continuation;
}

/// A place that moves forward through the markup, counted in both ways.
class Walk
{
public:
    Walk(const QByteArray &markup, bool inBytes) : m_markup(markup), m_inBytes(inBytes) {}

    /// Moves to a place that isn't before the current one, and returns its column in UTF-16 code units. A column
    /// behind the line's end becomes the line's end.
    int columnAt(int line, int column)
    {
        while (m_line < line && m_at < m_markup.size()) {
            const qsizetype end = m_markup.indexOf('\n', m_at);
            m_at = end < 0 ? m_markup.size() : end + 1;
            ++m_line;
            m_counted = 0;
            m_units = 0;
        }
        while (m_counted < column && m_at < m_markup.size() && m_markup[m_at] != '\n')
            step();
        // What Tidy doesn't count stands before the place and not behind it.
        while (m_at < m_markup.size() && isUncounted(m_markup[m_at]))
            step();
        return m_units;
    }

private:
    static bool isUncounted(char byte)
    {
        return static_cast<unsigned char>(byte) < ' ' && byte != '\t' && byte != '\n';
    }

    void step()
    {
        const char byte = m_markup[m_at];
        qsizetype length = 1;
        while (m_at + length < m_markup.size() && isContinuation(m_markup[m_at + length]))
            ++length;
        constexpr qsizetype lengthOutsidePlane = 4;
        m_units += length == lengthOutsidePlane ? 2 : 1;
        m_at += length;
        if (byte == '\t')
            m_counted = (m_counted / tabWidth + 1) * tabWidth;
        else if (!isUncounted(byte))
            m_counted += m_inBytes ? static_cast<int>(length) : 1;
    }

    const QByteArray &m_markup;
    const bool m_inBytes;
    qsizetype m_at = 0;
    int m_line = 0;
    int m_counted = 0;
    int m_units = 0;
};

struct LineStart {
    int line = 0;
    qsizetype offset = 0;
};

/// Where a line begins; if there is no such line, the last one.
LineStart startOfLine(const QString &text, int line)
{
    LineStart start;
    for (qsizetype at = 0; start.line < line && at < text.size(); ++at) {
        if (endsLine(text, at))
            start = {start.line + 1, at + 1};
    }
    return start;
}

bool isWordPart(QChar sign)
{
    return sign.isLetterOrNumber() || sign == u'&' || sign == u';' || sign == u'#' || sign == u'_';
}

/// The offset behind what begins at an offset within the text.
qsizetype endOfPiece(const QString &text, qsizetype start)
{
    if (text[start] == u'<') {
        const qsizetype end = QStringView(text).sliced(start).left(longestTag).indexOf(u'>');
        return end < 0 ? start + 1 : start + end + 1;
    }
    qsizetype end = start;
    while (end < text.size() && isWordPart(text[end]))
        ++end;
    if (end > start)
        return end;
    return start + (text[start].isHighSurrogate() && start + 1 < text.size() ? 2 : 1);
}

} // namespace

void toTextPlaces(std::vector<TidyMessage> &messages, const QByteArray &markup, bool inBytes)
{
    // In the order of the places, the markup is read once, however long its lines are.
    std::vector<std::size_t> order(messages.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(
        order, {}, [&messages](std::size_t index) { return std::pair(messages[index].line, messages[index].column); });
    Walk walk(markup, inBytes);
    for (const std::size_t index : order) {
        TidyMessage &message = messages[index];
        if (message.line >= 0)
            message.column = walk.columnAt(message.line, message.column);
    }
}

CodeMaxRange rangeAt(const QString &text, int line, int column)
{
    const auto [found, begin] = startOfLine(text, line);
    qsizetype lineEnd = begin;
    while (lineEnd < text.size() && !isLineEnd(text[lineEnd]))
        ++lineEnd;
    const qsizetype start = std::min(begin + column, lineEnd);
    const int startColumn = static_cast<int>(start - begin);
    if (start == lineEnd)
        return {found, startColumn, found, startColumn};

    const qsizetype end = endOfPiece(text, start);
    int lastLine = found;
    qsizetype lastBegin = begin;
    for (qsizetype at = start; at < end; ++at) {
        if (endsLine(text, at)) {
            ++lastLine;
            lastBegin = at + 1;
        }
    }
    return {found, startColumn, lastLine, static_cast<int>(end - lastBegin)};
}

} // namespace zephira

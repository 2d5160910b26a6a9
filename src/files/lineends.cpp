// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/lineends.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>
#include <string_view>

namespace zephira {

namespace {

/// The first occurrence of `byte` in the range, or `end`.
const char *find(const char *from, const char *end, char byte)
{
    const void *found = from == end ? nullptr : std::memchr(from, byte, static_cast<std::size_t>(end - from));
    return found ? static_cast<const char *>(found) : end;
}

/// Passes each run between line ends to `stretch`, and each line end to `lineEnd`.
template<typename Char, typename Stretch, typename LineEnd>
void walkLines(std::span<const Char> text, Stretch stretch, LineEnd lineEnd)
{
    while (!text.empty()) {
        const auto stop = std::ranges::find_if(text, [](Char c) { return c == '\r' || c == '\n'; });
        const auto length = static_cast<std::size_t>(stop - text.begin());
        stretch(text.first(length));
        text = text.subspan(length);
        if (text.empty())
            return;
        lineEnd();
        text = text.subspan(text.size() > 1 && text[0] == '\r' && text[1] == '\n' ? 2 : 1);
    }
}

/// The text with each of its line ends replaced. The size is computed first, so that memory is allocated only once.
template<typename Text, typename Char>
Text withLineEnds(std::span<const Char> text, std::span<const Char> replacement)
{
    std::size_t size = 0;
    walkLines(
        text, [&](auto stretch) { size += stretch.size(); }, [&] { size += replacement.size(); });
    Text result(static_cast<qsizetype>(size), Qt::Uninitialized);
    auto *out = reinterpret_cast<Char *>(result.data());
    const auto put = [&](std::span<const Char> part) { out = std::ranges::copy(part, out).out; };
    walkLines(text, put, [&] { put(replacement); });
    return result;
}

template<typename View>
auto characters(View view)
{
    return std::span(view.data(), static_cast<std::size_t>(view.size()));
}

QByteArrayView bytesOf(LineEnds kind)
{
    switch (kind) {
    case LineEnds::Lf:
        return "\n";
    case LineEnds::Cr:
        return "\r";
    case LineEnds::CrLf:
    case LineEnds::Mixed:
        break;
    }
    return "\r\n";
}

} // namespace

LineEnds lineEndsOf(QByteArrayView text)
{
    const char *next = text.begin();
    const char *end = text.end();
    const char *lineFeed = find(next, end, '\n');
    std::optional<LineEnds> seen;
    while (next != end) {
        const char *carriageReturn = find(next, lineFeed, '\r');
        if (carriageReturn == end)
            break;
        LineEnds kind = LineEnds::Lf;
        if (carriageReturn != lineFeed)
            kind = carriageReturn + 1 == lineFeed && lineFeed != end ? LineEnds::CrLf : LineEnds::Cr;
        next = (kind == LineEnds::Cr ? carriageReturn : lineFeed) + 1;
        if (seen && *seen != kind)
            return LineEnds::Mixed;
        seen = kind;
        if (next > lineFeed)
            lineFeed = find(next, end, '\n');
    }
    return seen.value_or(LineEnds::CrLf);
}

QByteArray toLineEnds(QByteArray text, LineEnds kind)
{
    const bool plain = !text.contains('\n') && !text.contains('\r');
    if (kind == LineEnds::Mixed || plain || lineEndsOf(text) == kind)
        return text;
    return withLineEnds<QByteArray>(characters(QByteArrayView(text)), characters(bytesOf(kind)));
}

QString toCrLf(const QString &text)
{
    return withLineEnds<QString>(
        characters(std::u16string_view(QStringView(text).utf16(), static_cast<std::size_t>(text.size()))),
        characters(std::u16string_view(u"\r\n")));
}

} // namespace zephira

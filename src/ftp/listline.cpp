// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/listline.h"

#include "ftp/finddata.h"

#include <algorithm>
#include <array>

namespace zephira {

namespace {

/// A part of a line delimited by blanks, and its position.
struct Word {
    QByteArrayView text;
    qsizetype begin = 0;

    qsizetype end() const { return begin + text.size(); }
};

using Words = std::vector<Word>;

/// The words that can precede the name; the remaining words of a long name aren't needed.
Words wordsOf(QByteArrayView line)
{
    constexpr std::size_t most = 16;
    Words words;
    qsizetype at = 0;
    while (words.size() < most) {
        while (at < line.size() && line[at] == ' ')
            ++at;
        const qsizetype begin = at;
        while (at < line.size() && line[at] != ' ')
            ++at;
        if (at == begin)
            break;
        words.push_back({line.sliced(begin, at - begin), begin});
    }
    return words;
}

/// The number in a text that consists of digits only.
template<typename Number>
std::optional<Number> digits(QByteArrayView text)
{
    bool ok = !text.isEmpty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    const qulonglong value = ok ? text.toULongLong(&ok) : 0;
    if (!ok || value > static_cast<qulonglong>(std::numeric_limits<Number>::max()))
        return {};
    return static_cast<Number>(value);
}

/// Numbers separated by one delimiter, as in "2001-03-05" or "9:07".
template<std::size_t count>
std::optional<std::array<int, count>> numbers(QByteArrayView text, char divider)
{
    std::array<int, count> values = {};
    for (std::size_t i = 0; i < count; ++i) {
        const bool last = i + 1 == count;
        const qsizetype end = last ? text.size() : text.indexOf(divider);
        const std::optional<int> value = end < 0 ? std::nullopt : digits<int>(text.first(end));
        if (!value)
            return {};
        values[i] = *value;
        text = last ? QByteArrayView() : text.sliced(end + 1);
    }
    return values;
}

/// 1 to 12, or 0.
int monthNumber(QByteArrayView name)
{
    constexpr const char *names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const auto found =
        std::ranges::find_if(names, [&](const char *month) { return name.compare(month, Qt::CaseInsensitive) == 0; });
    return found == std::end(names) ? 0 : static_cast<int>(found - std::begin(names)) + 1;
}

/// The last year in which this date existed and was not later than tomorrow.
int recentYear(int month, int day, QDate today)
{
    // Any eight years in a row contain a leap day.
    for (int year = today.addDays(1).year(); year > today.year() - 9; --year) {
        const QDate date(year, month, day);
        if (date.isValid() && date <= today.addDays(1))
            return year;
    }
    return 0;
}

/// "Mar 5 9:07", "Mar 5 2001", the same with the day first, or "2001-03-05 09:07", starting at a word. `length` becomes
/// the number of words.
std::optional<quint64> unixTime(const Words &words, std::size_t at, QDate today, std::size_t &length)
{
    SystemTime time;
    if (const auto date = numbers<3>(words[at].text, '-')) {
        length = 2;
        time = {(*date)[0], (*date)[1], (*date)[2]};
    } else if (at + 2 < words.size()) {
        length = 3;
        const bool dayFirst = monthNumber(words[at].text) == 0;
        time.month = monthNumber(words[at + (dayFirst ? 1 : 0)].text);
        time.day = digits<int>(words[at + (dayFirst ? 0 : 1)].text).value_or(0);
    }
    if (length == 0 || at + length > words.size())
        return {};
    const QByteArrayView last = words[at + length - 1].text;
    if (const auto clock = numbers<2>(last.first(std::min<qsizetype>(last.size(), 5)), ':')) {
        time.hour = (*clock)[0];
        time.minute = (*clock)[1];
        if (time.year == 0)
            time.year = recentYear(time.month, time.day, today);
    } else if (time.year == 0 && last.size() == 4) {
        time.year = digits<int>(last).value_or(0);
    } else {
        return {};
    }
    return systemTimeToFileTime(time);
}

/// The name and the target of a link are one text, "a -> b", and either may contain an arrow. On most servers the size
/// of a link is the length of its target, which shows where the target begins.
QByteArrayView linkName(QByteArrayView text, quint64 size)
{
    constexpr QByteArrayView arrow(" -> ");
    const quint64 behindName = size + static_cast<quint64>(arrow.size());
    if (behindName < static_cast<quint64>(text.size())) {
        const qsizetype end = text.size() - static_cast<qsizetype>(behindName);
        if (text.sliced(end).startsWith(arrow))
            return text.first(end);
    }
    const qsizetype end = text.indexOf(arrow);
    return end < 0 ? text : text.first(end);
}

/// "d" or "-" followed by NetWare's rights in brackets.
bool beginsNetWareLine(const Words &words)
{
    return words.front().text.size() == 1 && words[1].text.startsWith('[');
}

/// "drwxr-xr-x", perhaps followed by more characters.
bool beginsUnixLine(const Words &words)
{
    const QByteArrayView first = words.front().text;
    constexpr qsizetype length = 10;
    const auto isRight = [](char c) { return QByteArrayView("rwxsStTlL-").contains(c); };
    return first.size() >= length && std::all_of(first.begin() + 1, first.begin() + length, isRight);
}

/// Between the rights and the size there are usually a link count, an owner and a group, but there may be fewer or more
/// words. What can be recognised is a size followed by a date, so the first such pair is used.
std::optional<ListedEntry> readUnixLine(QByteArrayView line, const Words &words, QDate today)
{
    const char kind = words.front().text.front();
    const bool isNetWare = beginsNetWareLine(words);
    if (!QByteArrayView("-dl").contains(kind) || !(isNetWare || beginsUnixLine(words)))
        return {};
    for (std::size_t at = 2; at < words.size(); ++at) {
        std::size_t length = 0;
        const std::optional<quint64> size = digits<quint64>(words[at - 1].text);
        const std::optional<quint64> time = size ? unixTime(words, at, today, length) : std::nullopt;
        if (!time)
            continue;
        // One blank separates the date from the name, and further ones belong to the name; but NetWare pads its
        // columns.
        const qsizetype end = words[at + length - 1].end();
        if (end + 1 >= line.size())
            return {};
        const QByteArrayView rest = isNetWare ? line.sliced(end).trimmed() : line.sliced(end + 1);
        const bool isLink = kind == 'l';
        const bool hasSize = kind == '-';
        return ListedEntry{(isLink ? linkName(rest, *size) : rest).toByteArray(), kind == 'd', isLink,
                           hasSize ? *size : 0, *time};
    }
    return {};
}

/// "03-05-01" or "03-05-2001" with "09:07AM" or "21:07".
std::optional<quint64> dosTime(QByteArrayView dateText, QByteArrayView clockText)
{
    const auto date = numbers<3>(dateText, '-');
    const bool isMorning = clockText.endsWith("AM");
    const bool isAfternoon = clockText.endsWith("PM");
    if (isMorning || isAfternoon)
        clockText.chop(2);
    const auto clock = numbers<2>(clockText, ':');
    if (!date || !clock)
        return {};
    const auto [month, day, writtenYear] = *date;
    constexpr int firstShortYear = 70;
    const int year = writtenYear >= 100 ? writtenYear : writtenYear + (writtenYear < firstShortYear ? 2000 : 1900);
    const auto [writtenHour, minute] = *clock;
    const int hour = isMorning || isAfternoon ? writtenHour % 12 + (isAfternoon ? 12 : 0) : writtenHour;
    return systemTimeToFileTime({year, month, day, hour, minute});
}

std::optional<ListedEntry> readDosLine(QByteArrayView line, const Words &words)
{
    const std::optional<quint64> time = dosTime(words[0].text, words[1].text);
    const bool isFolder = words[2].text == "<DIR>";
    const std::optional<quint64> size = isFolder ? 0 : digits<quint64>(words[2].text);
    if (!time || !size)
        return {};
    // The column where names begin: ten blanks after the word for a folder, one after the last digit of a size.
    constexpr qsizetype behindFolder = 10;
    const QByteArrayView rest = line.sliced(words[2].end());
    const auto isBlank = [](char c) { return c == ' '; };
    const qsizetype blanks = std::ranges::find_if_not(rest, isBlank) - rest.begin();
    const qsizetype divider = std::min<qsizetype>(blanks, isFolder ? behindFolder : 1);
    return ListedEntry{rest.sliced(divider).toByteArray(), isFolder, false, *size, *time};
}

} // namespace

std::optional<ListedEntry> readListLine(QByteArrayView line, QDate today)
{
    const Words words = wordsOf(line);
    constexpr std::size_t fewest = 4;
    if (words.size() < fewest)
        return {};
    const char first = words.front().text.front();
    const bool isDos = first >= '0' && first <= '9';
    return isDos ? readDosLine(line, words) : readUnixLine(line, words, today);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/safenames.h"

#include <QString>

#include <algorithm>

namespace zephira {

namespace {

template<typename Unit>
std::basic_string_view<Unit> unitsOf(const Unit *begin, qsizetype count)
{
    return {begin, static_cast<std::size_t>(count)};
}

/// The rules for single characters and the two reserved names, which are the same for bytes and UTF-16 units.
template<typename Unit>
bool isPlainName(std::basic_string_view<Unit> name)
{
    constexpr Unit dots[] = {'.', '.'};
    const auto isForbidden = [](Unit unit) {
        return (unit >= 0 && unit < 0x20) || unit == 0x7f || unit == '/' || unit == '\\';
    };
    return !name.empty() && name != std::basic_string_view(dots, 1) && name != std::basic_string_view(dots, 2)
        && std::ranges::none_of(name, isForbidden);
}

template<typename Unit>
bool endsNoCommand(std::basic_string_view<Unit> text)
{
    return std::ranges::none_of(text, [](Unit unit) { return unit == '\r' || unit == '\n' || unit == 0; });
}

} // namespace

bool isSafeRemoteName(QStringView name)
{
    return isPlainName(unitsOf(name.utf16(), name.size())) && name.toUtf8().size() <= longestRemoteName;
}

bool isSafeRemoteName(QByteArrayView name)
{
    return isPlainName(unitsOf(name.data(), name.size())) && name.size() <= longestRemoteName;
}

bool isSafeInCommand(QStringView text)
{
    return endsNoCommand(unitsOf(text.utf16(), text.size()));
}

bool isSafeInCommand(QByteArrayView text)
{
    return endsNoCommand(unitsOf(text.data(), text.size()));
}

} // namespace zephira

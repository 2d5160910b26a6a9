// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "syntax/linelexer.h"

#include <QByteArrayView>

#include <cstring>

namespace zephira {

/// The letter in lower case; any other byte, and any letter beyond ASCII, as it is.
constexpr Byte lowerCase(Byte byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<Byte>(byte + 32) : byte;
}

/// Whether the bytes at `p` begin with `text`.
inline bool standsAt(const Byte *p, const Byte *end, QByteArrayView text)
{
    return end - p >= text.size() && std::memcmp(p, text.data(), static_cast<std::size_t>(text.size())) == 0;
}

/// The first occurrence of `text`, which must not be empty, at or after `p`, or `end`.
inline const Byte *findText(const Byte *p, const Byte *end, QByteArrayView text)
{
    const std::size_t size = static_cast<std::size_t>(text.size());
    while (static_cast<std::size_t>(end - p) >= size) {
        const auto *hit = static_cast<const Byte *>(
            std::memchr(p, static_cast<Byte>(text.front()), static_cast<std::size_t>(end - p) - size + 1));
        if (!hit)
            break;
        if (std::memcmp(hit, text.data(), size) == 0)
            return hit;
        p = hit + 1;
    }
    return end;
}

/// The bytes from `begin` to `end` as a view.
inline QByteArrayView viewOf(const Byte *begin, const Byte *end)
{
    return {reinterpret_cast<const char *>(begin), end - begin};
}

} // namespace zephira

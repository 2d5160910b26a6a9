// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/utf8.h"

#include <QtEndian>

#include <bit>

namespace zephira {

qsizetype asciiLength(QByteArrayView bytes)
{
    constexpr quint64 highBits = 0x8080808080808080;
    const auto word = [](const char *place) { return qFromLittleEndian<quint64>(place) & highBits; };
    const char *next = bytes.begin();
    const char *const end = bytes.end();
    // An array of words would be kept in memory, with a guard of the stack around each call, which takes twice the time.
    while (end - next >= 32 && (word(next) | word(next + 8) | word(next + 16) | word(next + 24)) == 0)
        next += 32;
    for (; end - next >= 8; next += 8) {
        if (const quint64 found = word(next))
            return next + std::countr_zero(found) / 8 - bytes.begin();
    }
    while (next != end && static_cast<unsigned char>(*next) < 0x80)
        ++next;
    return next - bytes.begin();
}

std::optional<char32_t> Utf8Reader::next()
{
    if (m_next == m_end)
        return {};
    const auto byte = [this](qsizetype index) { return static_cast<unsigned char>(m_next[index]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) {
        ++m_next;
        return lead;
    }
    const qsizetype length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || m_end - m_next < length)
        return {};
    char32_t value = lead & (0x7F >> length);
    for (qsizetype i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {};
        value = value << 6 | (byte(i) & 0x3F);
    }
    static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[length] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000))
        return {};
    m_next += length;
    return value;
}

bool isValidUtf8(QByteArrayView bytes)
{
    while (!(bytes = bytes.sliced(asciiLength(bytes))).isEmpty()) {
        Utf8Reader reader(bytes);
        // After one non-ASCII character more are likely, so the whole run is read character by character.
        while (!reader.atEnd() && static_cast<unsigned char>(*reader.rest().begin()) >= 0x80) {
            if (!reader.next())
                return false;
        }
        bytes = reader.rest();
    }
    return true;
}

char *putUtf8(char *out, char32_t codePoint)
{
    const auto put = [&](char32_t byte) { *out++ = static_cast<char>(byte); };
    const auto putTail = [&](int shift) { put(0x80 | (codePoint >> shift & 0x3F)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        putTail(0);
    } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12);
        putTail(6);
        putTail(0);
    } else {
        put(0xF0 | codePoint >> 18);
        putTail(12);
        putTail(6);
        putTail(0);
    }
    return out;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace zephira {

/// How many bytes before the first one that isn't ASCII; large blocks are compared at once.
qsizetype asciiLength(QByteArrayView bytes);

/// Whether the bytes are strictly valid UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF. Noncharacters
/// and NUL are allowed. Fast for text that is mostly ASCII.
bool isValidUtf8(QByteArrayView bytes);

/// Walks through UTF-8 code point by code point.
class Utf8Reader
{
public:
    explicit Utf8Reader(QByteArrayView bytes) : m_next(bytes.begin()), m_end(bytes.end()) {}

    bool atEnd() const { return m_next == m_end; }
    /// The bytes not read yet.
    QByteArrayView rest() const { return {m_next, m_end - m_next}; }
    /// Reads the next code point and moves past it. Returns nothing and doesn't move if the bytes are not valid UTF-8.
    std::optional<char32_t> next();

private:
    const char *m_next;
    const char *m_end;
};

/// Writes a code point and returns where the next one goes; up to four bytes must be free.
char *putUtf8(char *out, char32_t codePoint);

} // namespace zephira

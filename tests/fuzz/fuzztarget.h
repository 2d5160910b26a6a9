// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace zephira::fuzz {

/// A function that reads arbitrary bytes and ends the process if something is wrong with what comes out. It returns 0.
struct FuzzTarget {
    std::string_view name;
    int (*run)(const unsigned char *data, std::size_t size) = nullptr;
};

/// All targets of the program, in no particular order. Each adds itself before main() begins.
std::vector<FuzzTarget> &fuzzTargets();

struct FuzzRegistration {
    explicit FuzzRegistration(const FuzzTarget &target) { fuzzTargets().push_back(target); }
};

/// The input as it is.
inline QByteArray inputBytes(const unsigned char *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

inline QString inputText(const unsigned char *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

/// The first line of a text, which loses it together with its line feed.
inline QString takenLine(QString &text)
{
    const qsizetype end = text.indexOf(u'\n');
    const QString line = text.left(end);
    text = end < 0 ? QString() : text.mid(end + 1);
    return line;
}

/// Ends the process, as a failure for the current input, if the condition is false.
inline void check(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace zephira::fuzz

using zephira::fuzz::check;

/// Begins the definition of a target, whose corpus is the folder of the same name. The input is `data` and `size`.
#define FUZZ_TARGET(name)                                                                                              \
    static int name##Input(const unsigned char *data, std::size_t size);                                               \
    static const zephira::fuzz::FuzzRegistration name##Registration({#name, name##Input});                             \
    static int name##Input(const unsigned char *data, std::size_t size)

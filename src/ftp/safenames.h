// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace zephira {

/// The maximum length of an entry's name, in bytes as the server sends it.
constexpr qsizetype longestRemoteName = 259;

/// True for a name that is safe for a folder entry, here and on the server: not empty, not "." or "..", without "/",
/// "\" and control characters, and at most longestRemoteName bytes of UTF-8 long. Every name received from a server
/// must pass before a file is created with it.
bool isSafeRemoteName(QStringView name);
/// The same for the bytes as the server sends them.
bool isSafeRemoteName(QByteArrayView name);

/// True for a text that is safe in a command to the server: without CR, LF and NUL, which would end the command and
/// begin another one.
bool isSafeInCommand(QStringView text);
bool isSafeInCommand(QByteArrayView text);

} // namespace zephira

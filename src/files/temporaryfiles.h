// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filesystemcalls.h"

#include <QByteArray>

namespace zephira {

// The temporary files of atomic writes are named .zephira-<hexadecimal number>~. Their writer holds a lock on its own as
// long as it lives, and so tells others that they may not remove it; a file without one was left by a killed process.

/// The folder ends in its separator.
QByteArray temporaryName(const QByteArray &folder, quint64 number);

/// Claims a temporary file just made. False where another process was about to remove it: then its name is spent.
bool claimTemporary(FileSystemCalls &calls, int file);

/// Removes the temporary files of the folder whose writers are gone. What can't be removed is left.
void sweepTemporaries(FileSystemCalls &calls, const QByteArray &folder);

} // namespace zephira

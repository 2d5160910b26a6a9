// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/filesystemcalls.h"

#include <QByteArray>

namespace zephira {

// The temporary files of atomic writes are named .zephira-<hexadecimal number>~. The writer keeps its file locked,
// which tells other processes not to remove it; an unlocked file was left by a killed process.

/// `folder` ends in a separator.
QByteArray temporaryName(const QByteArray &folder, quint64 number);

/// Claims a temporary file just created. Returns false if another process is about to remove it; then another name is
/// needed.
bool claimTemporary(FileSystemCalls &calls, int file);

/// Removes the folder's temporary files whose writers have ended. Files that can't be removed are left.
void sweepTemporaries(FileSystemCalls &calls, const QByteArray &folder);

} // namespace zephira

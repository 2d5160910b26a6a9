// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/filesystemcalls.h"

#include <QByteArrayView>
#include <QString>

#include <span>

namespace zephira {

/// Whether AtomicWrite would separate a file from its other hard links, or can't replace it because its folder allows
/// no new files. False if the file doesn't exist or can't be examined.
bool mustBeWrittenInPlace(FileSystemCalls &calls, const QString &path);

/// Overwrites the content of a file. All its hard links show the new content; mode, owner and attributes are untouched.
/// If the disk is full, nothing is changed. If the process is killed or the disk fails, the file holds neither the old
/// nor the new content, so the caller must have kept a copy.
Result<void> writeInPlace(FileSystemCalls &calls, const QString &path, std::span<const QByteArrayView> pieces);

} // namespace zephira

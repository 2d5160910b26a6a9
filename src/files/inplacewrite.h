// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "files/filesystemcalls.h"

#include <QByteArrayView>
#include <QString>

#include <span>

namespace zephira {

/// Whether AtomicWrite would part a file from its other hard links, or can't replace it because its folder allows no new
/// files. False for what isn't there or can't be asked.
bool mustBeWrittenInPlace(FileSystemCalls &calls, const QString &path);

/// Writes over what stands in a file. All its names show the new content; mode, owner and attributes are untouched. Where
/// the disk has no room nothing is changed. A process that is killed, or a disk that fails, leaves a file that is neither
/// old nor new, so whoever calls this has a copy.
Result<void> writeInPlace(FileSystemCalls &calls, const QString &path, std::span<const QByteArrayView> pieces);

} // namespace zephira

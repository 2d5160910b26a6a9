// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace zephira {

/// A report that a process wrote when it crashed.
struct CrashReport {
    QString path;
    /// Start time of the process, in local time.
    QDateTime began;

    friend bool operator==(const CrashReport &, const CrashReport &) = default;
};

/// How many reports are kept.
inline constexpr qsizetype keptCrashReports = 5;

/// The newest reports in a folder, newest first, after removing those that are too many. Empty if there is no such
/// folder.
QList<CrashReport> crashReports(const QString &folder);

/// Lets the process and those that it starts leave no core files, as far as they don't ask for them again: a core file holds
/// the document and passwords in the clear. The report of a crash takes its place. Debuggers work as ever.
void forgoCoreFiles();

/// Takes a report off the list for good, but leaves it in its folder, where the user can find it.
Result<void> putAside(const CrashReport &report);

/// Writes a report into `folder` when the process crashes: the version, the signal and the addresses of the calls, and
/// nothing of the document. The process then ends as it would without. Signals that somebody else handles are left to
/// them. There must be only one instance per process.
class CrashWatch
{
public:
    /// `folder` is a full path; the folder above it must exist when a crash happens. Costs a few system calls and opens
    /// no file.
    explicit CrashWatch(const QString &folder);
    ~CrashWatch();
    CrashWatch(const CrashWatch &) = delete;
    CrashWatch &operator=(const CrashWatch &) = delete;

    /// Prepares what can't be prepared in a crash. Until then a report doesn't list the calls. Takes a millisecond, and
    /// so is called when the window shows.
    void prepareCallList();
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

/// What happens to a file call.
enum class FaultKind {
    Kill,     ///< The process is killed before the call.
    KillHalf, ///< It is killed after half of what the call is to write; before any other call.
    Short,    ///< The call reads or writes a single byte.
    Error,    ///< The call fails.
};

/// Which of the file calls below a folder go wrong, and how.
struct FileFault {
    FaultKind kind = FaultKind::Error;
    /// For FaultKind::Error. Calls that never fail with this error aren't counted: reading a full disk succeeds.
    int error = 0;
    /// The number of the first such call, from 1.
    int call = 1;
    /// Whether all later calls go wrong as well.
    bool lasts = false;
};

/// What became of it. It lies in memory that a process shares with those it forks off, so that it can be asked about one
/// that was killed.
struct FileFaultReport {
    /// The calls counted so far.
    int calls;
    /// How many of them went wrong.
    int struck;
    /// The first of these: the name of the C library's function.
    char name[32];
};

/// From now on calls of the C library that concern files below the folder, a path without a trailing separator, go
/// wrong, whoever makes them. Flushing is left out where it doesn't go wrong.
void beginFileFaults(const char *folder, const FileFault &fault);
void endFileFaults();
FileFaultReport &fileFaultReport();

} // namespace zephira

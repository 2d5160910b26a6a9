// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/sessionlog.h"

namespace zephira {

// Panels of the status bar, from 1: the one for passing texts, and the one for the connection.
constexpr int textPanel = 2;
constexpr int connectionPanel = 3;

/// Where the session's log is shown.
class LogDisplay
{
public:
    virtual ~LogDisplay() = default;

    /// Puts an entry into the log, in the place of its selection; logText() tells which parts it takes.
    virtual void log(LogEntry entry, const QStringList &parts = {}) = 0;
    /// The same for one of many: it may be shown together with those that follow, up to a twentieth of a second later or
    /// when showLog() is called.
    virtual void logSoon(LogEntry entry, const QStringList &parts = {}) { log(entry, parts); }
    virtual void showLog() {}
    virtual void clearLog() = 0;
};

/// Where the session tells what it is at.
class PanelDisplay
{
public:
    virtual ~PanelDisplay() = default;

    virtual void setPanel(int panel, const QString &text) = 0;
    /// Shows the hourglass while something is waited for.
    virtual void setBusy(bool busy) = 0;
};

} // namespace zephira

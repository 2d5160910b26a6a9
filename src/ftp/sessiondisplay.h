// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/sessionlog.h"

namespace zephira {

// Panels of the status bar, counted from 1: for temporary texts, and for the connection.
constexpr int textPanel = 2;
constexpr int connectionPanel = 3;

/// Where the session's log is shown.
class LogDisplay
{
public:
    virtual ~LogDisplay() = default;

    /// Inserts an entry into the log, replacing its selection; see LogEntry for the parts.
    virtual void log(LogEntry entry, const QStringList &parts = {}) = 0;
    /// The same for one of many entries: it may be shown together with later ones, up to a twentieth of a second later
    /// or when showLog() is called.
    virtual void logSoon(LogEntry entry, const QStringList &parts = {}) { log(entry, parts); }
    virtual void showLog() {}
    virtual void clearLog() = 0;
};

/// Shows the session's current activity.
class PanelDisplay
{
public:
    virtual ~PanelDisplay() = default;

    virtual void setPanel(int panel, const QString &text) = 0;
    /// Shows the wait cursor.
    virtual void setBusy(bool busy) = 0;
};

} // namespace zephira

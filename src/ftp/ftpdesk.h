// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/sessionlog.h"

namespace zephira {

// Panels of the status bar, from 1: the one for passing texts, and the one for the connection.
constexpr int textPanel = 2;
constexpr int connectionPanel = 3;

/// The FTP window as its commands and the other two windows of the file transfer see it.
class FtpDesk
{
public:
    virtual ~FtpDesk() = default;

    /// Puts an entry into the log, in the place of its selection; logText() tells which parts it takes.
    virtual void log(LogEntry entry, const QStringList &parts = {}) = 0;
    virtual void clearLog() = 0;
    virtual void setPanel(int panel, const QString &text) = 0;
    /// Shows the hourglass while something is waited for.
    virtual void setBusy(bool busy) = 0;

    // The check marks of the transfer menu.
    virtual void markTransferType(bool binary) = 0;
    virtual void markPassive(bool passive) = 0;

    /// Empties the tree of server folders.
    virtual void clearRemoteTree() = 0;
    /// Adds the root of the server to the tree.
    virtual void addRemoteRoot() = 0;
    /// Lists the session's search path into the tree and the list of the server.
    virtual void List() = 0;

    /// Shows a form of the catalogue modally over the window, and waits for its end.
    virtual void openModal(const QString &form) = 0;

    // The Refresh commands of the two panes.
    virtual void refreshLocal() = 0;
    virtual void refreshRemote() = 0;
};

} // namespace zephira

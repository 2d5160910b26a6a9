// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/sessiondisplay.h"

namespace zephira {

/// The FTP window as the commands and the connection see it.
class FtpDesk : public LogDisplay, public PanelDisplay
{
public:
    /// Whether there is a window that could show a session; without it, connecting is not possible.
    virtual bool isThere() const { return true; }

    // The check marks of the transfer menu.
    virtual void markTransferType(bool binary) = 0;
    virtual void markPassive(bool passive) = 0;

    /// Empties the tree of server folders.
    virtual void clearRemoteTree() = 0;
    /// Adds the server's root to the tree.
    virtual void addRemoteRoot() = 0;
    /// Lists the session's search path and fills the tree and the server's file list.
    virtual void List() = 0;

    /// Opens a form of the catalogue modally over the window, and waits until it is closed.
    virtual void openModal(const QString &form) = 0;

    // The Refresh commands of the two panes.
    virtual void refreshLocal() = 0;
    virtual void refreshRemote() = 0;
};

} // namespace zephira

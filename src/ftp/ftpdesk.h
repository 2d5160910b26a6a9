// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/sessiondisplay.h"

namespace zephira {

/// The FTP window as its commands and the connection see it.
class FtpDesk : public LogDisplay, public PanelDisplay
{
public:
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/internetoperations.h"

namespace zephira {

/// The session that the windows of the file transfer share: one per process, which outlives them.
struct FtpSession {
    InternetHandle ftpOpenHandle = 0;
    InternetHandle ftpConnectHandle = 0;
    /// 1 for ASCII, 2 for binary. It only reflects the menu, because every transfer is binary.
    qint32 ftpTransferType = 0;
    QString ftpServer;
    QString ftpUser;
    QString ftpPassword;
    qint16 ftpPort = 0;
    /// Ends in a separator.
    QString ftpLocalFolder;
    /// The folder and pattern of the last listing.
    QString ftpSearchPath;
    /// Ends in "/".
    QString ftpRemoteFolder;

    /// There is no other flag: stale handles count as connected, and operations on them then fail.
    bool isConnected() const { return ftpOpenHandle != 0 && ftpConnectHandle != 0; }
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/ftpsession.h"
#include "ftp/transferqueue.h"

namespace zephira {

/// What the windows of the file transfer share. There is one per process, so that a window that is closed and opened
/// again finds the session as it was left.
struct FtpClient {
    InternetOperations &operations;
    FtpSession session = {};
    TransferQueue queue = {};
};

} // namespace zephira

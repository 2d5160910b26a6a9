// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

enum class FileListMode : int;

/// The commands of the FTP window itself.
class FtpWindowCommands
{
public:
    virtual ~FtpWindowCommands() = default;

    /// Moves the local side to the folder of the saved logs.
    virtual void openLogs() = 0;
    virtual void saveLog() = 0;
    /// Opens the site manager.
    virtual void chooseSite() = 0;
    virtual void closeWindow() = 0;
    /// Changes the mode of the next connection.
    virtual void togglePassive() = 0;
    virtual void toggleToolBar() = 0;
    virtual void showLocalFiles(FileListMode view) = 0;
    virtual void showRemoteFiles(FileListMode view) = 0;
};

} // namespace zephira

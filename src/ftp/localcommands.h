// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class FtpDesk;
class LocalView;
struct AppContext;
struct FileRow;
struct FtpClient;

/// The commands of this machine's side. If the system refuses an operation and there is no message for that case, they
/// raise HandlerError with Basic's description.
class LocalCommands
{
public:
    LocalCommands(FtpClient &client, FtpDesk &desk, LocalView &view, const AppContext &context);

    /// Reads the folder again and updates the pane.
    void refill();
    void openFile();
    void upload();
    void newFolder();
    void removeFolder();
    void deleteFiles();
    void rename();
    void patternAll();
    void patternDefined();
    void findFile();
    void showProperties();

    /// Moves to a folder and updates the pane.
    void moveTo(const QString &folder);
    /// Moves to the root of a drive.
    void chooseDrive(const QString &drive);
    /// Shows the number and size of the selected files.
    void showSummary();
    void renameStarted(const QString &name);
    /// Called when a name was edited. Returns whether the new name may stay in the list.
    bool renameEnded(const QString &oldName, const QString &newName);

private:
    void refuse(const QString &message);
    bool confirm(const QString &question);
    QString pathOf(const FileRow &file) const;

    FtpClient &m_client;
    FtpDesk &m_desk;
    LocalView &m_view;
    const AppContext &m_context;
};

/// The row for a local file.
FileRow localFileRow(const QString &path);

} // namespace zephira

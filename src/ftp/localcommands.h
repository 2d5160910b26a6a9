// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class FtpDesk;
class LocalView;
struct AppContext;
struct FileRow;
struct FtpClient;

/// The commands of this machine's side. What the system refuses and no message of their own covers raises HandlerError,
/// with Basic's description.
class LocalCommands
{
public:
    LocalCommands(FtpClient &client, FtpDesk &desk, LocalView &view, const AppContext &context);

    /// Reads the folder anew and fills the pane from it.
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

    /// Moves to a folder and fills the pane from it.
    void moveTo(const QString &folder);
    /// Moves to the root of a drive.
    void chooseDrive(const QString &drive);
    /// Tells the number and size of the selected files.
    void showSummary();
    void renameStarted(const QString &name);
    /// What follows when a name was edited. Returns whether the new name may stay in the list.
    bool renameEnded(const QString &oldName, const QString &newName);

private:
    void refuse(const QString &message);
    bool confirm(const QString &question);
    /// Asks about those of some files that the program needs itself, by name. True if nothing speaks against the command.
    bool mayChange(const QStringList &names, const QString &question);
    QString pathOf(const FileRow &file) const;

    FtpClient &m_client;
    FtpDesk &m_desk;
    LocalView &m_view;
    const AppContext &m_context;
};

/// The row of a file of this machine.
FileRow localFileRow(const QString &path);

} // namespace zephira

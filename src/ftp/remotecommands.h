// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class FtpDesk;
class RemoteView;
enum class LogEntry;
struct AppContext;
struct FileRow;
struct FtpClient;
struct RemoteNode;

/// The commands of the server's side. Commands that need a connection check for it first and show a message if there is
/// none. All of them wait until the server has answered.
class RemoteCommands
{
public:
    RemoteCommands(FtpClient &client, FtpDesk &desk, RemoteView &view, const AppContext &context);

    /// Lists the session's search path.
    void list();
    /// Moves to a folder of the tree, as when it is clicked.
    void openNode(const RemoteNode &node);

    void refresh();
    void download();
    void newFolder();
    void removeFolder();
    void deleteFiles();
    void rename();
    void patternAll();
    void patternDefined();

    /// Shows the number and size of the selected files.
    void showSummary();
    void renameStarted(const QString &name);
    /// Called when a name was edited. Returns whether the new name may stay in the list.
    bool renameEnded(const QString &oldName, const QString &newName);

private:
    bool isConnected(const QString &refusal);
    /// Shows a message with the exclamation icon, and adds the log entry for it.
    void fail(const QString &message, LogEntry entry);
    void setPattern(const QString &pattern, bool all);
    bool sendRename(const QString &oldName, const QString &newName, bool asked);

    FtpClient &m_client;
    FtpDesk &m_desk;
    RemoteView &m_view;
    const AppContext &m_context;
    QString m_pattern = QStringLiteral("*.*");
};

} // namespace zephira

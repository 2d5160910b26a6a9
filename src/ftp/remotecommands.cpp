// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/remotecommands.h"

#include "core/appcontext.h"
#include "core/clock.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "core/vbtext.h"
#include "ftp/extensionchange.h"
#include "ftp/ftpclient.h"
#include "ftp/ftpdesk.h"
#include "ftp/programdata.h"
#include "ftp/remotelisting.h"
#include "ftp/remoteview.h"
#include "ftp/safenames.h"

using namespace Qt::StringLiterals;

namespace zephira {

RemoteCommands::RemoteCommands(FtpClient &client, FtpDesk &desk, RemoteView &view, const AppContext &context)
    : m_client(client), m_desk(desk), m_view(view), m_context(context)
{}

bool RemoteCommands::isConnected(const QString &refusal)
{
    if (m_client.session.isConnected())
        return true;
    m_context.prompts.tell(refusal);
    return false;
}

void RemoteCommands::fail(const QString &message, LogEntry entry)
{
    m_context.prompts.tell(message, {}, Question::Icon::Exclamation);
    m_desk.log(entry);
}

void RemoteCommands::list()
{
    const FtpSession &session = m_client.session;
    m_view.setPathText(session.ftpSearchPath);
    if (!isConnected(u"You are not connected to any server"_s))
        return;
    m_desk.setPanel(textPanel, timeOfDay(m_context.clock.now()) + u"  > Sending request..., wait."_s);
    m_desk.setBusy(true);
    m_view.files().setRows({});
    m_desk.log(LogEntry::ListingBegun);
    m_desk.log(LogEntry::FolderOpened, {session.ftpSearchPath});
    RemoteListing listing = readRemoteListing(m_client.operations, session.ftpConnectHandle, session.ftpSearchPath);
    m_view.addFolders(session.ftpRemoteFolder, listing.folders);
    m_view.files().setRows(std::move(listing.files));
    m_desk.log(LogEntry::ListingDone);
    m_desk.setBusy(false);
    m_desk.setPanel(textPanel,
                    u"Server: "_s + QString::number(m_view.files().count()) + u" Files in folder: "_s
                        + session.ftpSearchPath);
}

void RemoteCommands::openNode(const RemoteNode &node)
{
    FtpSession &session = m_client.session;
    session.ftpRemoteFolder = node.text == remoteRootText ? remoteRootKey.toString() : node.key;
    session.ftpSearchPath = session.ftpRemoteFolder + m_pattern;
    m_view.rebuildNode(node.key);
    // The call uses the open handle, which has no folder, and its result doesn't matter: commands use full paths.
    m_client.operations.FtpSetCurrentDirectoryA(session.ftpOpenHandle, session.ftpSearchPath);
    list();
}

void RemoteCommands::refresh()
{
    if (!isConnected(u"Not connected to any server!"_s))
        return;
    if (const auto node = m_view.selectedNode())
        openNode(*node);
}

void RemoteCommands::download()
{
    if (!isConnected(u"Not connected to any server!"_s))
        return;
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        m_context.prompts.tell(u"No file selected!!"_s, {}, Question::Icon::None);
        return;
    }
    QStringList names;
    for (const FileRow &file : files)
        names.append(file.name);
    if (!mayOverwriteProgramData(m_context, m_client.session.ftpLocalFolder, names))
        return;
    m_desk.log(LogEntry::DownloadQueued);
    TransferQueue queue{TransferQueue::Direction::Download, {}};
    for (const FileRow &file : files) {
        queue.files.push_back({file.name, file.bytes.toLongLong()});
        m_desk.logSoon(LogEntry::QueuedFile,
                       {QString::number(queue.files.size()), m_client.session.ftpRemoteFolder + file.name});
    }
    m_desk.showLog();
    m_client.queue = std::move(queue);
    m_desk.openModal(u"frmProg"_s);
    m_desk.refreshLocal();
}

void RemoteCommands::newFolder()
{
    if (!isConnected(u"Not connected to any server"_s))
        return;
    const QString name =
        m_context.prompts.input({u"Type name for the new folder"_s, u"New Folder"_s}).value_or(QString());
    if (name.isEmpty())
        return;
    const QString path = m_client.session.ftpRemoteFolder + name;
    m_desk.log(LogEntry::FolderCreationBegun, {path});
    if (!isSafeInCommand(name)) {
        fail(u"Make sure folder doesn't exist"_s, LogEntry::FolderCreationError);
    } else if (m_client.operations.FtpCreateDirectoryA(m_client.session.ftpConnectHandle, path)) {
        m_desk.log(LogEntry::FolderCreated);
        refresh();
    } else {
        fail(u"An error osccured while creating folder!"_s, LogEntry::FolderCreationFailed);
    }
}

void RemoteCommands::removeFolder()
{
    if (!isConnected(u"Not connected to any Server!"_s))
        return;
    const auto node = m_view.selectedNode();
    if (!node)
        return;
    if (node->text == remoteRootText) {
        m_context.prompts.tell(u"This is the root folder that can not be removed!"_s, {}, Question::Icon::Exclamation);
        return;
    }
    if (m_context.prompts.ask({u"Are you sure to remove this folder: "_s + node->text + u"?"_s,
                               {},
                               Question::Icon::Question,
                               Question::Buttons::YesNo})
        != Answer::Yes)
        return;
    // The folder named in the question, even if another one is open.
    const QString path = node->key.chopped(1);
    const QString parent = Left(path, path.size() - node->text.size());
    m_desk.log(LogEntry::FolderRemovalBegun, {path});
    if (m_client.operations.FtpRemoveDirectoryA(m_client.session.ftpConnectHandle, path)) {
        m_desk.log(LogEntry::FolderRemoved);
        m_view.selectNode(parent);
        refresh();
    } else {
        fail(u"An error occured! Make sure that folder contains no files"_s, LogEntry::FolderRemovalFailed);
    }
}

void RemoteCommands::deleteFiles()
{
    if (!isConnected(u"Not connected to any server!"_s))
        return;
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        m_context.prompts.tell(u"No file is selected to be deleted!!"_s);
        return;
    }
    if (m_context.prompts.ask(
            {u"Are you sure to delete all of these files?"_s, {}, Question::Icon::Question, Question::Buttons::YesNo})
        != Answer::Yes)
        return;
    m_desk.log(LogEntry::DeletionBegun);
    for (const FileRow &file : files) {
        m_desk.log(LogEntry::FileDeletion, {file.name});
        if (!m_client.operations.FtpDeleteFileA(m_client.session.ftpConnectHandle,
                                                m_client.session.ftpRemoteFolder + file.name)) {
            fail(u"An error occured while deleting file!"_s, LogEntry::DeletionFailed);
            return;
        }
        m_desk.log(LogEntry::Done);
    }
    refresh();
}

void RemoteCommands::rename()
{
    if (!isConnected(u"Not connected to any server!"_s))
        return;
    if (m_view.files().selected().empty())
        m_context.prompts.tell(u"Nothing to rename!"_s, {}, Question::Icon::Exclamation);
    else
        m_view.files().editName();
}

void RemoteCommands::renameStarted(const QString &name)
{
    m_desk.setPanel(textPanel, u"Server: Renaming file: \""_s + name + u'"');
}

bool RemoteCommands::renameEnded(const QString &oldName, const QString &newName)
{
    const ExtensionChange change(oldName, newName);
    if (change.isNone())
        return sendRename(oldName, newName, false);
    return m_context.prompts.ask(change.question()) == Answer::Yes && sendRename(oldName, newName, true);
}

bool RemoteCommands::sendRename(const QString &oldName, const QString &newName, bool asked)
{
    const FtpSession &session = m_client.session;
    m_desk.log(LogEntry::RenameBegun, {oldName, newName});
    // With such a name the server would move the file to another folder.
    if (newName.contains(u'/') || newName == u"." || newName == u"..") {
        fail(asked ? u"Can't fill your request!"_s : u"Can't accomplishe request!"_s, LogEntry::RenameFailed);
        return false;
    }
    // Many servers would silently overwrite the other file.
    if (m_view.files().contains(newName)) {
        fail(u"More files with the same name in one folder? Grrrrr!"_s, LogEntry::RenameError);
        return false;
    }
    if (m_client.operations.FtpRenameFileA(session.ftpConnectHandle, session.ftpRemoteFolder + oldName,
                                           session.ftpRemoteFolder + newName)) {
        m_desk.log(LogEntry::Renamed, {newName});
        refresh();
    } else {
        fail(asked ? u"Can't fill your request!"_s : u"Can't accomplishe request!"_s, LogEntry::RenameFailed);
    }
    return true;
}

void RemoteCommands::patternAll()
{
    setPattern(u"*.*"_s, true);
}

void RemoteCommands::patternDefined()
{
    const QString pattern =
        m_context.prompts.input({u"Define file type extension (*.?):"_s, u"Pattern"_s}).value_or(QString());
    if (!pattern.isEmpty())
        setPattern(pattern, false);
}

void RemoteCommands::setPattern(const QString &pattern, bool all)
{
    m_view.markPattern(all);
    m_pattern = pattern;
    QString &searchPath = m_client.session.ftpSearchPath;
    searchPath.chop(lastName(searchPath).size());
    searchPath += pattern;
    refresh();
}

void RemoteCommands::showSummary()
{
    constexpr double kilobyte = 1000;
    const std::vector<FileRow> files = m_view.files().selected();
    m_desk.setPanel(textPanel,
                    u"Server: "_s + QString::number(files.size()) + u" Files selected, "_s
                        + CStr(static_cast<double>(totalBytes(files)) / kilobyte) + u" kb"_s);
}

} // namespace zephira

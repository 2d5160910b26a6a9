// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/localcommands.h"

#include "core/appcontext.h"
#include "core/errorstyles.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "core/shell.h"
#include "core/vbtext.h"
#include "ftp/extensionchange.h"
#include "ftp/ftpclient.h"
#include "ftp/ftpdesk.h"
#include "ftp/localview.h"
#include "ftp/programdata.h"
#include "ftp/sessionlogfile.h"
#include "ftp/shownfolder.h"
#include "widgets/fileimages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr double localKilobyte = 1000;

void require(bool done, const QString &description)
{
    if (!done)
        throw HandlerError{description};
}

/// True for a name that can't lead out of its folder.
bool staysInFolder(const QString &name)
{
    return name != u"." && name != u".." && !name.contains(u'/') && !name.contains(QChar::Null);
}

FileRow rowOf(const QFileInfo &file, const QLocale &locale)
{
    return {.name = file.fileName(),
            .size = Format(static_cast<double>(file.size()) / localKilobyte, u"### ### ###.##") + u" Kb"_s,
            .date = locale.toString(file.lastModified(), QLocale::ShortFormat),
            .bytes = QString::number(file.size()),
            .image = imageForFile(file.fileName())};
}

} // namespace

FileRow localFileRow(const QString &path)
{
    return rowOf(QFileInfo(path), QLocale::system());
}

LocalCommands::LocalCommands(FtpClient &client, FtpDesk &desk, LocalView &view, const AppContext &context)
    : m_client(client), m_desk(desk), m_view(view), m_context(context)
{}

void LocalCommands::refuse(const QString &message)
{
    m_context.prompts.tell(message, {}, Question::Icon::Exclamation);
}

bool LocalCommands::confirm(const QString &question)
{
    return m_context.prompts.ask({question, {}, Question::Icon::Question, Question::Buttons::YesNo}) == Answer::Yes;
}

QString LocalCommands::pathOf(const FileRow &file) const
{
    return m_client.session.ftpLocalFolder + file.name;
}

void LocalCommands::refill()
{
    m_view.refreshLists();
    m_view.files().setRows({});
    const QString folder = m_client.session.ftpLocalFolder = withSlash(m_view.folder());
    m_view.setPathText(shownFolder(folder));
    const QStringList names = m_view.fileNames();
    const QLocale locale = QLocale::system();
    std::vector<FileRow> rows;
    rows.reserve(static_cast<std::size_t>(names.size()));
    for (const QString &name : names)
        rows.push_back(rowOf(QFileInfo(folder + name), locale));
    m_view.files().setRows(std::move(rows));
    m_desk.setPanel(textPanel,
                    u"Local: "_s + QString::number(m_view.files().count()) + u" Files in folder: "_s + folder);
}

void LocalCommands::moveTo(const QString &folder)
{
    require(m_view.setFolder(folder), u"Path not found"_s);
    refill();
}

void LocalCommands::chooseDrive(const QString &drive)
{
    require(m_view.setFolder(drive), u"Device unavailable"_s);
    refill();
}

void LocalCommands::openFile()
{
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        refuse(u"Nothing to open!"_s);
        return;
    }
    if (const Result<void> opened = m_context.shell.open(pathOf(files.front())); !opened)
        refuse(opened.error().sentence);
}

void LocalCommands::upload()
{
    if (!m_client.session.isConnected()) {
        m_context.prompts.tell(u"not connected to any server!"_s);
        return;
    }
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        m_context.prompts.tell(u"No files selected!!"_s, {}, Question::Icon::None);
        return;
    }
    m_desk.log(LogEntry::UploadQueued);
    TransferQueue queue{TransferQueue::Direction::Upload, {}};
    for (const FileRow &file : files) {
        queue.files.push_back({file.name, file.bytes.toLongLong()});
        m_desk.logSoon(LogEntry::QueuedFile, {QString::number(queue.files.size()), pathOf(file)});
    }
    m_desk.showLog();
    m_client.queue = std::move(queue);
    m_desk.openModal(u"frmProg"_s);
    m_desk.refreshRemote();
}

void LocalCommands::newFolder()
{
    const QString name =
        m_context.prompts.input({u"Type a name of the new folder here"_s, u"Name"_s}).value_or(QString());
    if (name.isEmpty())
        return;
    if (QDir().mkdir(m_client.session.ftpLocalFolder + name))
        m_view.refreshLists();
    else
        refuse(u"an error apeared while creating new folder\r\nMake sure folder doesn't exist!"_s);
}

void LocalCommands::removeFolder()
{
    const QString folder = m_view.folder();
    if (folder.endsWith(u'/')) {
        refuse(u"This is the root folder that can't be removed!"_s);
        return;
    }
    if (folder == m_context.appPath || folder == logFolder(m_context)) {
        refuse(u"This is the program folder that can't be removed!"_s);
        return;
    }
    if (!confirm(u"Are you sure to remove this folder: "_s + lastName(folder)
                 + u"? Make sure it contains no files!\r\nIf you are, don't look for it in recycle!"_s))
        return;
    require(QDir().rmdir(folder), u"Path/File access error"_s);
    moveTo(parentFolder(folder));
}

void LocalCommands::deleteFiles()
{
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        refuse(u"Neni co vymazat!"_s);
        return;
    }
    if (!confirm(u"Are you sure to delete these files?\r\nif you are, don't look for them in recycle!"_s))
        return;
    QStringList names;
    for (const FileRow &file : files)
        names.append(file.name);
    if (!mayChangeProgramData(m_context, m_client.session.ftpLocalFolder, names, u"Delete it all the same?"_s))
        return;
    for (const FileRow &file : files)
        require(QFile::remove(pathOf(file)),
                QFileInfo::exists(pathOf(file)) ? u"Permission denied"_s : u"File not found"_s);
    refill();
}

void LocalCommands::rename()
{
    if (m_view.files().selected().empty())
        refuse(u"nothing to rename!"_s);
    else
        m_view.files().editName();
}

void LocalCommands::renameStarted(const QString &name)
{
    m_desk.setPanel(textPanel, u"Local: Renaming file: \""_s + name + u'"');
}

bool LocalCommands::renameEnded(const QString &oldName, const QString &newName)
{
    const ExtensionChange change(oldName, newName);
    if (!change.isNone() && m_context.prompts.ask(change.question()) != Answer::Yes)
        return false;
    require(staysInFolder(newName), u"Bad file name or number"_s);
    const QString folder = m_client.session.ftpLocalFolder;
    // A link counts as well, even if its target doesn't exist.
    if (const QFileInfo target(folder + newName); target.exists() || target.isSymLink()) {
        refuse(u"More than one file with the same name in one folder? no way!"_s);
        return false;
    }
    if (!mayChangeProgramData(m_context, folder, {oldName}, u"Rename it all the same?"_s))
        return false;
    require(QFile::rename(folder + oldName, folder + newName), u"Path/File access error"_s);
    return true;
}

void LocalCommands::patternAll()
{
    m_view.setPattern(u"*.*"_s, true);
    refill();
}

void LocalCommands::patternDefined()
{
    const QString pattern =
        m_context.prompts.input({u"Define file type extension (*.?):"_s, u"Pattern"_s}).value_or(QString());
    if (pattern.isEmpty())
        return;
    m_view.setPattern(pattern, false);
    refill();
}

void LocalCommands::findFile()
{
    if (const Result<void> found = m_context.shell.findFiles(); !found)
        refuse(found.error().sentence);
}

void LocalCommands::showProperties()
{
    const std::vector<FileRow> files = m_view.files().selected();
    if (files.empty()) {
        m_context.prompts.tell(u"Properties of what?"_s, {}, Question::Icon::None);
        return;
    }
    if (const Result<void> shown = m_context.shell.showProperties(pathOf(files.front())); !shown)
        refuse(shown.error().sentence);
}

void LocalCommands::showSummary()
{
    const std::vector<FileRow> files = m_view.files().selected();
    m_desk.setPanel(textPanel,
                    u"Local: "_s + QString::number(files.size()) + u" Files selected, "_s
                        + CStr(static_cast<double>(totalBytes(files)) / localKilobyte) + u" Kb"_s);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/recordingoperations.h"

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

QString hexadecimal(quint32 flags)
{
    return u"0x"_s + QString::number(flags, 16);
}

/// The error number of an operation that fails without a specific reason.
constexpr quint32 anyError = 1;

} // namespace

bool RecordingOperations::succeeds(const char *operation, const QStringList &arguments)
{
    const QString name = QString::fromLatin1(operation);
    log.append(name + u'(' + arguments.join(u", "_s) + u')');
    if (onCall)
        onCall(log.last());
    const auto failure = failures.find(name);
    if (failure == failures.end() || failure->second == 0)
        return true;
    if (failure->second > 0)
        --failure->second;
    return false;
}

InternetHandle RecordingOperations::InternetOpenA(const QString &agent, quint32 accessType, const QString &proxy,
                                                  const QString &proxyBypass, quint32 flags)
{
    return succeeds(
               "InternetOpenA",
               {quoted(agent), QString::number(accessType), quoted(proxy), quoted(proxyBypass), hexadecimal(flags)})
        ? nextHandle()
        : 0;
}

InternetHandle RecordingOperations::InternetConnectA(InternetHandle open, const QString &server, quint16 port,
                                                     const QString &user, const QString &password, quint32 service,
                                                     quint32 flags, quintptr context)
{
    return succeeds("InternetConnectA",
                    {QString::number(open), quoted(server), QString::number(port), quoted(user), quoted(password),
                     QString::number(service), hexadecimal(flags), QString::number(context)})
        ? nextHandle()
        : 0;
}

bool RecordingOperations::FtpGetCurrentDirectoryA(InternetHandle connection, QString &buffer, quint32 &length)
{
    if (!succeeds("FtpGetCurrentDirectoryA", {QString::number(connection), QString::number(length)}))
        return false;
    buffer.replace(0, loginFolder.size() + 1, loginFolder + QChar(u'\0'));
    length = static_cast<quint32>(loginFolder.size());
    return true;
}

bool RecordingOperations::FtpSetCurrentDirectoryA(InternetHandle connection, const QString &folder)
{
    return succeeds("FtpSetCurrentDirectoryA", {QString::number(connection), quoted(folder)});
}

InternetHandle RecordingOperations::FtpFindFirstFileA(InternetHandle connection, const QString &search, FindData &found,
                                                      quint32 flags, quintptr context)
{
    const bool success =
        succeeds("FtpFindFirstFileA",
                 {QString::number(connection), quoted(search), hexadecimal(flags), QString::number(context)});
    const auto folder = folders.find(search);
    if (!success || folder == folders.end() || folder->second.empty())
        return 0;
    std::deque<FindData> rest = folder->second;
    found = rest.front();
    rest.pop_front();
    const InternetHandle handle = nextHandle();
    m_listings.emplace(handle, std::move(rest));
    return handle;
}

bool RecordingOperations::InternetFindNextFileA(InternetHandle find, FindData &found)
{
    const auto listing = m_listings.find(find);
    if (!succeeds("InternetFindNextFileA", {QString::number(find)}) || listing == m_listings.end()
        || listing->second.empty())
        return false;
    found = listing->second.front();
    listing->second.pop_front();
    return true;
}

InternetHandle RecordingOperations::FtpOpenFileA(InternetHandle connection, const QString &file, quint32 access,
                                                 quint32 flags, quintptr context)
{
    if (!succeeds("FtpOpenFileA",
                  {QString::number(connection), quoted(file), hexadecimal(access), QString::number(flags),
                   QString::number(context)}))
        return 0;
    if (access == GENERIC_WRITE)
        files[file].clear();
    const InternetHandle handle = nextHandle();
    m_openFiles.emplace(handle, OpenFile{file});
    return handle;
}

bool RecordingOperations::InternetReadFile(InternetHandle file, char *buffer, quint32 size, quint32 &count)
{
    count = 0;
    const auto open = m_openFiles.find(file);
    if (!succeeds("InternetReadFile", {QString::number(file), QString::number(size)}) || open == m_openFiles.end())
        return false;
    const QByteArray content = files[open->second.path].mid(open->second.position, size);
    std::memcpy(buffer, content.constData(), static_cast<std::size_t>(content.size()));
    open->second.position += content.size();
    count = static_cast<quint32>(content.size());
    return true;
}

bool RecordingOperations::InternetWriteFile(InternetHandle file, const char *buffer, quint32 size, quint32 &count)
{
    count = 0;
    const auto open = m_openFiles.find(file);
    if (!succeeds("InternetWriteFile", {QString::number(file), QString::number(size)}) || open == m_openFiles.end())
        return false;
    files[open->second.path].append(buffer, size);
    count = size;
    return true;
}

bool RecordingOperations::FtpCreateDirectoryA(InternetHandle connection, const QString &folder)
{
    return succeeds("FtpCreateDirectoryA", {QString::number(connection), quoted(folder)});
}

bool RecordingOperations::FtpRemoveDirectoryA(InternetHandle connection, const QString &folder)
{
    return succeeds("FtpRemoveDirectoryA", {QString::number(connection), quoted(folder)});
}

bool RecordingOperations::FtpDeleteFileA(InternetHandle connection, const QString &file)
{
    return succeeds("FtpDeleteFileA", {QString::number(connection), quoted(file)});
}

bool RecordingOperations::FtpRenameFileA(InternetHandle connection, const QString &from, const QString &to)
{
    return succeeds("FtpRenameFileA", {QString::number(connection), quoted(from), quoted(to)});
}

bool RecordingOperations::InternetCloseHandle(InternetHandle handle)
{
    m_listings.erase(handle);
    m_openFiles.erase(handle);
    return succeeds("InternetCloseHandle", {QString::number(handle)});
}

quint32 RecordingOperations::RasEnumConnectionsA(std::span<RasConnection> connections, quint32 &byteCount,
                                                 quint32 &count)
{
    const quint32 firstSize = connections.empty() ? 0 : connections.front().size;
    if (!succeeds("RasEnumConnectionsA", {QString::number(firstSize), QString::number(byteCount)}))
        return anyError;
    const std::size_t found = std::min(dialUp.size(), connections.size());
    std::copy_n(dialUp.begin(), found, connections.begin());
    count = static_cast<quint32>(found);
    byteCount = count * rasConnectionSize;
    return 0;
}

quint32 RecordingOperations::RasHangUpA(quint32 connection)
{
    return succeeds("RasHangUpA", {QString::number(connection)}) ? 0 : anyError;
}

void RecordingOperations::expectTransfer(InternetHandle)
{
    announcedBehind.append(log.value(log.size() - 1));
}

FindData foundFile(const QString &name, quint64 size, const SystemTime &written)
{
    return {0, systemTimeToFileTime(written).value_or(0), static_cast<quint32>(size >> 32),
            static_cast<quint32>(size & 0xffffffff), name};
}

FindData foundFolder(const QString &name)
{
    FindData folder = foundFile(name, 0);
    folder.attributes = FILE_ATTRIBUTE_DIRECTORY;
    return folder;
}

} // namespace zephira

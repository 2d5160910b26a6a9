// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/netoperations.h"

#include "core/clock.h"
#include "ftp/net/netconnection.h"
#include "ftp/net/remotefile.h"

#include <deque>
#include <variant>

namespace zephira {

namespace {

/// The handle that InternetOpenA returns: permission to connect. The protocol has no use for agent and proxy.
struct Opening {};

using Found = std::deque<FindData>;

} // namespace

struct NetHandle {
    InternetHandle parent = 0;
    std::variant<Opening, std::unique_ptr<NetConnection>, Found, std::unique_ptr<FileReader>,
                 std::unique_ptr<FileWriter>>
        content;
};

NetOperations::NetOperations(const Clock &clock, std::chrono::milliseconds limit) : m_clock(clock), m_limit(limit) {}

NetOperations::~NetOperations()
{
    // Children have higher numbers than their parents and must be closed first.
    while (!m_handles.empty())
        m_handles.erase(std::prev(m_handles.end()));
}

template<typename Content>
InternetHandle NetOperations::add(InternetHandle parent, Content content)
{
    m_handles.emplace(++m_lastHandle, std::make_unique<NetHandle>(NetHandle{parent, std::move(content)}));
    return m_lastHandle;
}

template<typename Content>
Content *NetOperations::find(InternetHandle handle)
{
    const auto found = m_handles.find(handle);
    return found == m_handles.end() ? nullptr : std::get_if<Content>(&found->second->content);
}

NetConnection *NetOperations::connection(InternetHandle handle)
{
    const auto *found = find<std::unique_ptr<NetConnection>>(handle);
    return found ? found->get() : nullptr;
}

InternetHandle NetOperations::InternetOpenA(const QString &, quint32, const QString &, const QString &, quint32)
{
    return add(0, Opening());
}

InternetHandle NetOperations::InternetConnectA(InternetHandle open, const QString &server, quint16 port,
                                               const QString &user, const QString &password, quint32 service,
                                               quint32 flags, quintptr)
{
    if (!find<Opening>(open) || service != INTERNET_SERVICE_FTP)
        return 0;
    auto connection = std::make_unique<NetConnection>(m_limit, (flags & INTERNET_FLAG_PASSIVE) != 0);
    return connection->logIn(server, port, user, password) ? add(open, std::move(connection)) : 0;
}

bool NetOperations::FtpGetCurrentDirectoryA(InternetHandle handle, QString &buffer, quint32 &length)
{
    const NetConnection *with = connection(handle);
    const QString folder = with ? with->currentFolder() : QString();
    if (folder.isEmpty() || folder.size() >= static_cast<qsizetype>(length))
        return false;
    buffer.replace(0, folder.size() + 1, folder + QChar(u'\0'));
    length = static_cast<quint32>(folder.size());
    return true;
}

bool NetOperations::FtpSetCurrentDirectoryA(InternetHandle handle, const QString &folder)
{
    NetConnection *with = connection(handle);
    return with && with->setCurrentFolder(folder);
}

InternetHandle NetOperations::FtpFindFirstFileA(InternetHandle handle, const QString &search, FindData &found, quint32,
                                                quintptr)
{
    NetConnection *with = connection(handle);
    if (!with)
        return 0;
    std::vector<FindData> entries = with->find(search, m_clock.now().date());
    if (entries.empty())
        return 0;
    found = entries.front();
    return add(handle, Found(std::make_move_iterator(entries.begin() + 1), std::make_move_iterator(entries.end())));
}

bool NetOperations::InternetFindNextFileA(InternetHandle find, FindData &found)
{
    auto *rest = this->find<Found>(find);
    if (!rest || rest->empty())
        return false;
    found = std::move(rest->front());
    rest->pop_front();
    return true;
}

InternetHandle NetOperations::FtpOpenFileA(InternetHandle handle, const QString &file, quint32 access, quint32,
                                           quintptr)
{
    NetConnection *with = connection(handle);
    if (!with)
        return 0;
    if (access == GENERIC_READ && with->beginTransfer("RETR", file))
        return add(handle, std::make_unique<FileReader>(with->conversation()));
    if (access == GENERIC_WRITE && with->beginTransfer("STOR", file))
        return add(handle, std::make_unique<FileWriter>(with->conversation()));
    return 0;
}

bool NetOperations::InternetReadFile(InternetHandle file, char *buffer, quint32 size, quint32 &count)
{
    count = 0;
    const auto *reader = find<std::unique_ptr<FileReader>>(file);
    return reader && (*reader)->read(buffer, size, count);
}

bool NetOperations::InternetWriteFile(InternetHandle file, const char *buffer, quint32 size, quint32 &count)
{
    const auto *writer = find<std::unique_ptr<FileWriter>>(file);
    const bool written = writer && (*writer)->write(buffer, size);
    count = written ? size : 0;
    return written;
}

void NetOperations::expectTransfer(InternetHandle handle)
{
    if (NetConnection *with = connection(handle))
        with->conversation().expectTransfer();
}

bool NetOperations::FtpCreateDirectoryA(InternetHandle handle, const QString &folder)
{
    NetConnection *with = connection(handle);
    return with && with->execute("MKD", folder);
}

bool NetOperations::FtpRemoveDirectoryA(InternetHandle handle, const QString &folder)
{
    NetConnection *with = connection(handle);
    return with && with->execute("RMD", folder);
}

bool NetOperations::FtpDeleteFileA(InternetHandle handle, const QString &file)
{
    NetConnection *with = connection(handle);
    return with && with->execute("DELE", file);
}

bool NetOperations::FtpRenameFileA(InternetHandle handle, const QString &from, const QString &to)
{
    NetConnection *with = connection(handle);
    return with && with->rename(from, to);
}

bool NetOperations::InternetCloseHandle(InternetHandle handle)
{
    const auto closed = m_handles.find(handle);
    if (closed == m_handles.end())
        return false;
    std::vector<InternetHandle> children;
    for (const auto &[number, other] : m_handles) {
        if (other->parent == handle)
            children.push_back(number);
    }
    for (const InternetHandle child : children)
        InternetCloseHandle(child);
    const auto *writer = std::get_if<std::unique_ptr<FileWriter>>(&closed->second->content);
    const bool complete = !writer || (*writer)->close();
    m_handles.erase(closed);
    return complete;
}

quint32 NetOperations::RasEnumConnectionsA(std::span<RasConnection>, quint32 &byteCount, quint32 &count)
{
    byteCount = 0;
    count = 0;
    return 0;
}

quint32 NetOperations::RasHangUpA(quint32)
{
    constexpr quint32 invalidHandle = 6;
    return invalidHandle;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/internetoperations.h"

#include <chrono>
#include <map>
#include <memory>

namespace zephira {

class Clock;
class NetConnection;
struct NetHandle;

/// The operations over real connections. A connection handle has one logged-in control connection until it is closed;
/// if the server ends that, the handle's operations fail from then on. Handle numbers are never reused, so a stale one
/// is harmless.
class NetOperations final : public InternetOperations
{
public:
    /// The time limit for each wait on the network: for a connection, a reply, a block of data.
    static constexpr std::chrono::seconds usualLimit{30};

    /// The clock provides the day for dates in listings that have no year.
    explicit NetOperations(const Clock &clock, std::chrono::milliseconds limit = usualLimit);
    Q_DISABLE_COPY_MOVE(NetOperations)
    ~NetOperations() override;

    InternetHandle InternetOpenA(const QString &agent, quint32 accessType, const QString &proxy,
                                 const QString &proxyBypass, quint32 flags) override;
    InternetHandle InternetConnectA(InternetHandle open, const QString &server, quint16 port, const QString &user,
                                    const QString &password, quint32 service, quint32 flags, quintptr context) override;
    bool FtpGetCurrentDirectoryA(InternetHandle connection, QString &buffer, quint32 &length) override;
    bool FtpSetCurrentDirectoryA(InternetHandle connection, const QString &folder) override;
    InternetHandle FtpFindFirstFileA(InternetHandle connection, const QString &search, FindData &found, quint32 flags,
                                     quintptr context) override;
    bool InternetFindNextFileA(InternetHandle find, FindData &found) override;
    InternetHandle FtpOpenFileA(InternetHandle connection, const QString &file, quint32 access, quint32 flags,
                                quintptr context) override;
    bool InternetReadFile(InternetHandle file, char *buffer, quint32 size, quint32 &count) override;
    bool InternetWriteFile(InternetHandle file, const char *buffer, quint32 size, quint32 &count) override;
    void expectTransfer(InternetHandle connection) override;
    bool FtpCreateDirectoryA(InternetHandle connection, const QString &folder) override;
    bool FtpRemoveDirectoryA(InternetHandle connection, const QString &folder) override;
    bool FtpDeleteFileA(InternetHandle connection, const QString &file) override;
    bool FtpRenameFileA(InternetHandle connection, const QString &from, const QString &to) override;
    bool InternetCloseHandle(InternetHandle handle) override;
    /// There are no dial-up connections here.
    quint32 RasEnumConnectionsA(std::span<RasConnection> connections, quint32 &byteCount, quint32 &count) override;
    quint32 RasHangUpA(quint32 connection) override;

private:
    template<typename Content>
    InternetHandle add(InternetHandle parent, Content content);
    template<typename Content>
    Content *find(InternetHandle handle);
    NetConnection *connection(InternetHandle handle);

    const Clock &m_clock;
    std::chrono::milliseconds m_limit;
    InternetHandle m_lastHandle = 0;
    std::map<InternetHandle, std::unique_ptr<NetHandle>> m_handles;
};

} // namespace zephira

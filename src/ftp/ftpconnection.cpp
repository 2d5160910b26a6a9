// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpconnection.h"

#include "core/paths.h"
#include "core/prompts.h"
#include "core/vbtext.h"
#include "ftp/ftpclient.h"
#include "ftp/ftpdesk.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qint32 asciiTransfer = 1;
constexpr qint32 binaryTransfer = 2;

} // namespace

bool FtpConnection::connectToServer(const ConnectRequest &request, const std::function<void()> &hideDialog)
{
    FtpSession &session = m_client.session;
    setTransferType(request.binary);
    m_desk.markPassive(request.passive);
    const quint32 flags = request.passive ? INTERNET_FLAG_PASSIVE : INTERNET_FLAG_EXISTING_CONNECT;
    if (!openConnection(request, flags, hideDialog)) {
        m_client.operations.InternetCloseHandle(session.ftpOpenHandle);
        return false;
    }
    m_desk.log(LogEntry::HostSearched);
    m_desk.setPanel(connectionPanel, u"Online"_s);
    session.ftpSearchPath = loginSearchPath();
    m_desk.log(LogEntry::Connected);
    m_desk.addRemoteRoot();
    // The list shows the login folder, but commands build their paths from the root until a folder is clicked.
    session.ftpRemoteFolder = u"/"_s;
    m_desk.List();
    return true;
}

bool FtpConnection::openConnection(const ConnectRequest &request, quint32 flags,
                                   const std::function<void()> &hideDialog)
{
    FtpSession &session = m_client.session;
    session.ftpOpenHandle = m_client.operations.InternetOpenA(request.siteName, INTERNET_OPEN_TYPE_DIRECT, {}, {},
                                                              INTERNET_FLAG_NO_CACHE_WRITE);
    hideDialog();
    if (session.ftpOpenHandle == 0) {
        m_prompts.tell(u"Connection to service failed!"_s, {}, Question::Icon::Exclamation);
        m_desk.log(LogEntry::ServiceFailed);
        return false;
    }
    m_desk.log(LogEntry::Banner, {UCase(request.siteName), session.ftpServer});
    // The port is an unsigned 16-bit number, so a negative number means one above 32767.
    session.ftpConnectHandle = m_client.operations.InternetConnectA(
        session.ftpOpenHandle, session.ftpServer, static_cast<quint16>(session.ftpPort), session.ftpUser,
        session.ftpPassword, INTERNET_SERVICE_FTP, flags, 0);
    if (session.ftpConnectHandle == 0) {
        m_prompts.tell(u"Connection to server failed!"_s, {}, Question::Icon::Exclamation);
        m_desk.log(LogEntry::ServerFailed);
        return false;
    }
    return true;
}

QString FtpConnection::loginSearchPath()
{
    constexpr quint32 bufferLength = 260;
    QString folder(bufferLength, u' ');
    quint32 length = bufferLength;
    // If the server doesn't report its folder, the root is listed.
    if (!m_client.operations.FtpGetCurrentDirectoryA(m_client.session.ftpConnectHandle, folder, length))
        folder.clear();
    if (const qsizetype end = folder.indexOf(QChar::Null); end >= 0)
        folder.truncate(end);
    return withSlash(folder) + u"*.*"_s;
}

void FtpConnection::setTransferType(bool binary)
{
    m_client.session.ftpTransferType = binary ? binaryTransfer : asciiTransfer;
    m_desk.markTransferType(binary);
}

void FtpConnection::disconnectFromServer()
{
    closeHandles();
    m_client.session.ftpConnectHandle = 0;
    m_client.session.ftpOpenHandle = 0;
    m_desk.log(LogEntry::Disconnected);
}

void FtpConnection::closeHandles()
{
    m_client.operations.InternetCloseHandle(m_client.session.ftpConnectHandle);
    m_client.operations.InternetCloseHandle(m_client.session.ftpOpenHandle);
}

void FtpConnection::hangUp()
{
    constexpr quint32 mostConnections = 256;
    std::vector<RasConnection> connections(mostConnections);
    connections.front().size = rasConnectionSize;
    quint32 byteCount = rasConnectionSize * mostConnections;
    quint32 count = 0;
    if (m_client.operations.RasEnumConnectionsA(connections, byteCount, count) != 0)
        return;
    connections.resize(std::min(count, mostConnections));
    for (const RasConnection &connection : connections) {
        if (m_client.operations.RasHangUpA(connection.handle) == 0)
            m_prompts.tell(u"Ending connection: "_s + connection.entryName);
    }
}

} // namespace zephira

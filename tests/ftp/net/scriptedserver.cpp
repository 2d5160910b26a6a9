// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/net/scriptedserver.h"

#include "ftp/net/hostlookup.h"

#include <QString>

#include <sys/socket.h>

namespace zephira {

namespace {

using namespace std::chrono_literals;

/// Longer than any test waits, so that the client gives up first.
constexpr auto patience = 60s;

SocketAddress loopback()
{
    return lookUpHost(QStringLiteral("127.0.0.1"), 0, Deadline(1s)).front();
}

/// Closes a connection with a reset, so that the other side sees an error instead of the end.
void resetSocket(Socket &socket)
{
    const linger atOnce = {1, 0};
    ::setsockopt(socket.descriptor(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof(atOnce));
    socket.close();
}

using Session = ScriptedServer::Session;

/// The handlers of commands for which the test has none.
std::map<QByteArray, ScriptedServer::Handler> usualHandlers()
{
    const auto sending = [](const QByteArray &bytes) {
        return [bytes](Session &session, const QByteArray &) {
            session.reply("150 Here it comes");
            session.sendData(bytes);
            session.closeData();
            session.reply("226 Done");
        };
    };
    return {
        {"", replying("220 Hello")},
        {"USER", replying("331 Password?")},
        {"PASS", replying("230 Welcome")},
        {"TYPE", replying("200 Binary")},
        {"PWD", replying("257 \"/\"")},
        {"FEAT", replying("500 None")},
        {"CWD", replying("250 Here")},
        {"DELE", replying("250 Gone")},
        {"MKD", replying("257 Made")},
        {"RMD", replying("250 Gone")},
        {"RNFR", replying("350 To?")},
        {"RNTO", replying("250 Renamed")},
        {"EPSV",
         [](Session &session, const QByteArray &) {
             session.reply("229 Here (|||" + QByteArray::number(session.openDataPort()) + "|)");
         }},
        {"LIST", sending("-rw-r--r-- 1 ftp ftp 5 Mar  5  2001 a.htm\r\n")},
        {"RETR", sending("hello")},
        {"STOR",
         [](Session &session, const QByteArray &) {
             session.reply("150 Send");
             session.receiveData();
             session.reply("226 Done");
         }},
        {"QUIT",
         [](Session &session, const QByteArray &) {
             session.reply("221 Bye");
             session.drop();
         }},
    };
}

} // namespace

void Session::reply(const QByteArray &line)
{
    m_control.send(line + "\r\n", patience);
}

void Session::sendData(const QByteArray &bytes)
{
    acceptData();
    m_data.send(bytes, patience);
}

QByteArray Session::receiveData()
{
    acceptData();
    QByteArray all;
    char block[4096];
    qsizetype count = 0;
    while ((count = m_data.receive(block, sizeof(block), Deadline(patience))) > 0)
        all.append(block, count);
    m_data.close();
    return all;
}

qsizetype Session::receivePiece(qsizetype size)
{
    acceptData();
    QByteArray piece(size, Qt::Uninitialized);
    return m_data.receive(piece.data(), size, Deadline(patience));
}

void Session::stall()
{
    char byte;
    while (m_control.receive(&byte, 1, Deadline(patience)) > 0) {}
}

void Session::reset()
{
    resetSocket(m_control);
}

void Session::resetData()
{
    resetSocket(m_data);
}

quint16 Session::openDataPort()
{
    m_dataPort = Socket::listeningAt(m_control.localAddress().withPort(0));
    return m_dataPort.localAddress().port();
}

void Session::acceptData()
{
    if (!m_data.isOpen())
        m_data = m_dataPort.accept(m_control.peerAddress(), Deadline(patience));
}

void Session::serve()
{
    answer({});
    QByteArray input;
    char block[4096];
    qsizetype count = 0;
    while ((count = m_control.receive(block, sizeof(block), Deadline(patience))) > 0) {
        input.append(block, count);
        for (qsizetype end = 0; (end = input.indexOf("\r\n")) >= 0; input.remove(0, end + 2)) {
            m_server.m_commands.append(input.first(end));
            answer(input.first(end));
        }
    }
}

void Session::answer(const QByteArray &line)
{
    const qsizetype blank = line.indexOf(' ');
    const auto handler = m_server.m_handlers.find(blank < 0 ? line : line.first(blank));
    if (handler == m_server.m_handlers.end())
        reply("500 What?");
    else
        handler->second(*this, blank < 0 ? QByteArray() : line.sliced(blank + 1));
}

ScriptedServer::ScriptedServer(std::map<QByteArray, Handler> handlers)
    : m_handlers(std::move(handlers))
    , m_listener(Socket::listeningAt(loopback()))
    , m_port(m_listener.localAddress().port())
{
    m_handlers.merge(usualHandlers());
    m_thread = std::thread([this] {
        Session session(m_listener.accept(loopback(), Deadline(patience)), *this);
        session.serve();
    });
}

ScriptedServer::~ScriptedServer()
{
    commands();
}

QList<QByteArray> ScriptedServer::commands()
{
    if (m_thread.joinable()) {
        // A thread that still waits for its client accepts this connection.
        Socket::connectedTo(loopback().withPort(m_port), Deadline(patience));
        m_thread.join();
    }
    return m_commands;
}

ScriptedServer::Handler replying(const QByteArray &line)
{
    return [line](Session &session, const QByteArray &) { session.reply(line); };
}

QByteArray verbs(const QList<QByteArray> &commands)
{
    QByteArray list;
    for (const QByteArray &command : commands)
        list += command.split(' ').front() + ' ';
    return list.trimmed();
}

} // namespace zephira

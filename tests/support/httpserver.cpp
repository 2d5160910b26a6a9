// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/httpserver.h"

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QByteArray answerWith(const QByteArray &status, const QByteArray &headers, const QByteArray &body)
{
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n"
        + headers + "\r\n" + body;
}

} // namespace

HttpServer::HttpServer()
{
    auto *server = new QTcpServer;
    server->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, server, &QObject::deleteLater);
    QObject::connect(server, &QTcpServer::newConnection, server, [this, server] {
        QTcpSocket *socket = server->nextPendingConnection();
        ++m_connections;
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            if (!socket->peek(65536).contains("\r\n\r\n"))
                return;
            const QByteArray answer = answerTo(socket->readAll());
            if (answer.isEmpty())
                return;
            socket->write(answer);
            socket->disconnectFromHost();
        });
    });
    m_thread.start();
    QMetaObject::invokeMethod(
        server,
        [this, server] {
            if (!server->listen(QHostAddress::LocalHost))
                qFatal("no port is free");
            m_port = server->serverPort();
            auto *datagrams = new QUdpSocket(server);
            if (!datagrams->bind(QHostAddress::LocalHost, m_port))
                qFatal("the port isn't free for datagrams");
            QObject::connect(datagrams, &QUdpSocket::readyRead, datagrams, [this, datagrams] {
                while (datagrams->hasPendingDatagrams()) {
                    datagrams->readDatagram(nullptr, 0);
                    ++m_datagrams;
                    ++m_connections;
                }
            });
        },
        Qt::BlockingQueuedConnection);
}

HttpServer::~HttpServer()
{
    m_thread.quit();
    m_thread.wait();
}

void HttpServer::put(const QString &path, const QByteArray &body, const QByteArray &headers)
{
    putRaw(path, answerWith("200 OK", headers, body));
}

void HttpServer::putRaw(const QString &path, const QByteArray &answer)
{
    const QMutexLocker lock(&m_mutex);
    m_answers[path] = answer;
}

void HttpServer::putSilence(const QString &path)
{
    putRaw(path, {});
}

void HttpServer::serveFolder(const QString &folder)
{
    const QMutexLocker lock(&m_mutex);
    m_folder = folder;
}

QStringList HttpServer::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

QByteArray HttpServer::answerTo(const QByteArray &request)
{
    const QString path = QString::fromLatin1(request.split(' ').value(1));
    const QMutexLocker lock(&m_mutex);
    m_requests.append(path);
    const auto answer = m_answers.constFind(path);
    if (answer != m_answers.constEnd())
        return *answer;
    QFile file(m_folder + QUrl::fromPercentEncoding(path.toLatin1()));
    if (!m_folder.isEmpty() && file.open(QIODevice::ReadOnly))
        return answerWith("200 OK", "Content-Type: text/html\r\n", file.readAll());
    return answerWith("404 Not Found", "Content-Type: text/html\r\n", "nothing here");
}

} // namespace zephira

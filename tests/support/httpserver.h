// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QStringList>
#include <QThread>

#include <atomic>

namespace zephira {

/// A local web server on a free port, in a thread of its own, so that a test may block while waiting for it. Unknown
/// paths are answered with 404.
class HttpServer
{
public:
    HttpServer();
    ~HttpServer();
    Q_DISABLE_COPY_MOVE(HttpServer)

    /// Answers a path with a body; `headers` are whole lines with CR LF.
    void put(const QString &path, const QByteArray &body, const QByteArray &headers = "Content-Type: text/html\r\n");
    /// Answers a path with exactly these bytes, including headers, and closes the connection.
    void putRaw(const QString &path, const QByteArray &answer);
    /// Accepts requests of that path and never answers them.
    void putSilence(const QString &path);
    /// Also serves the files of a folder.
    void serveFolder(const QString &folder);

    QString address(const QString &path) const { return QStringLiteral("http://127.0.0.1:%1%2").arg(m_port).arg(path); }
    quint16 port() const { return m_port; }
    /// How many connections have come, be it without a request, and how many datagrams on the same port.
    int connections() const { return m_connections; }
    /// How many datagrams among them.
    int datagrams() const { return m_datagrams; }
    /// The requested paths, in order.
    QStringList requests() const;

private:
    /// Empty if there is to be no answer.
    QByteArray answerTo(const QByteArray &request);

    mutable QMutex m_mutex;
    QHash<QString, QByteArray> m_answers;
    QString m_folder;
    QStringList m_requests;
    std::atomic<int> m_connections = 0;
    std::atomic<int> m_datagrams = 0;
    QThread m_thread;
    quint16 m_port = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QStringList>
#include <QThread>

namespace zephira {

/// A web server on a free port of this machine, in a thread of its own, so that a test may wait for it. What isn't named
/// is answered with 404.
class HttpServer
{
public:
    HttpServer();
    ~HttpServer();
    Q_DISABLE_COPY_MOVE(HttpServer)

    /// Answers a path with a body; `headers` are whole lines with CR LF.
    void put(const QString &path, const QByteArray &body, const QByteArray &headers = "Content-Type: text/html\r\n");
    /// Answers a path with these bytes, headers and all, and closes the connection.
    void putRaw(const QString &path, const QByteArray &answer);
    /// Takes requests of that path and never answers.
    void putSilence(const QString &path);
    /// Hands out the files of a folder as well.
    void serveFolder(const QString &folder);

    QString address(const QString &path) const { return QStringLiteral("http://127.0.0.1:%1%2").arg(m_port).arg(path); }
    /// The paths that were asked for, in order.
    QStringList requests() const;

private:
    /// Empty where nothing is to be answered.
    QByteArray answerTo(const QByteArray &request);

    mutable QMutex m_mutex;
    QHash<QString, QByteArray> m_answers;
    QString m_folder;
    QStringList m_requests;
    QThread m_thread;
    quint16 m_port = 0;
};

} // namespace zephira

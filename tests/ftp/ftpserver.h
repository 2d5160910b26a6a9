// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace zephira {

/// A real server at an address of this machine that no other process uses. It has a folder that may be written, and goes
/// with the test, however that ends.
class FtpServer
{
public:
    enum class Kind {
        /// Lets everybody in, and has no listing for programs.
        Vsftpd,
        /// Knows one user, and lists for programs too.
        Pyftpdlib,
    };

    /// Starts it, and waits until it answers; the test fails if it doesn't.
    explicit FtpServer(Kind kind);
    ~FtpServer() { kill(); }
    Q_DISABLE_COPY_MOVE(FtpServer)

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    void kill();

    const QString &host() const { return m_host; }
    quint16 port() const { return m_port; }
    QString user() const;
    QString password() const;

    /// Where a login leads.
    QString loginFolder() const;
    /// The folder that may be written, as the server names it and on the disk. Both end in "/".
    QString folder() const;
    QString localFolder() const { return m_root.path() + QStringLiteral("/served/pub/"); }
    /// Puts a file there, whose name is a server's bytes, and belongs to the server's user.
    void addFile(const QByteArray &name, const QByteArray &content) const;

private:
    QStringList command() const;
    QByteArray vsftpdSettings() const;
    bool answers() const;

    const Kind m_kind;
    const QString m_host;
    const quint16 m_port;
    QTemporaryDir m_root;
    QProcess m_process;
};

} // namespace zephira

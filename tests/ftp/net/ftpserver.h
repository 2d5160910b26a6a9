// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace zephira {

/// A real server at a local address that no other process uses. It has a writable folder and ends with the test,
/// however the test ends.
class FtpServer
{
public:
    enum class Kind {
        /// Accepts anonymous users, and has no machine-readable listings.
        Vsftpd,
        /// Accepts one user with a password, and also has machine-readable listings.
        Pyftpdlib,
    };

    /// Starts the server and waits until it answers; fails the test if it doesn't.
    explicit FtpServer(Kind kind);
    ~FtpServer() { kill(); }
    Q_DISABLE_COPY_MOVE(FtpServer)

    bool isRunning() const { return m_process.state() == QProcess::Running; }
    void kill();
    /// Lets clients wait until goOn().
    void hold() const;
    void goOn() const;

    const QString &host() const { return m_host; }
    quint16 port() const { return m_port; }
    QString user() const;
    QString password() const;

    /// The current folder after a login.
    QString loginFolder() const;
    /// The writable folder, as the server names it and on the disk. Both paths end with "/".
    QString folder() const;
    QString localFolder() const { return m_root.path() + QStringLiteral("/served/pub/"); }
    /// Adds a file to the writable folder. It belongs to the server's user; its name is given as the server's bytes.
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

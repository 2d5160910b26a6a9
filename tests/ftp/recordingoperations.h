// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/internetoperations.h"

#include <QByteArray>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>

namespace zephira {

/// Operations that keep each call with its arguments, in order, and answer as their public members say. The log has one
/// line a call: `FtpDeleteFileA(2, "/a.htm")`; numbers of flags are hexadecimal, texts in double quotes, and blocks are
/// told by their length. Without a script every call succeeds: handles count up from 1, folders are empty, and files
/// read as `files` has them by their path.
struct RecordingOperations final : InternetOperations {
    QStringList log;

    /// Names of operations that fail, and how many times more; -1 stands for always.
    std::map<QString, int> failures;
    /// What FtpGetCurrentDirectoryA tells.
    QString loginFolder = QStringLiteral("/");
    /// The entries that listings find, by search string.
    std::map<QString, std::deque<FindData>> folders;
    /// The files' contents by their path: what is read, and what was written.
    std::map<QString, QByteArray> files;
    std::deque<RasConnection> dialUp;
    /// The calls behind which another transfer of their connection was announced. That has no line in the log, because
    /// the platform has no such operation.
    QStringList announcedBehind;
    /// When set, is told of each call before it is answered.
    std::function<void(const QString &call)> onCall;

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
    bool FtpCreateDirectoryA(InternetHandle connection, const QString &folder) override;
    bool FtpRemoveDirectoryA(InternetHandle connection, const QString &folder) override;
    bool FtpDeleteFileA(InternetHandle connection, const QString &file) override;
    bool FtpRenameFileA(InternetHandle connection, const QString &from, const QString &to) override;
    bool InternetCloseHandle(InternetHandle handle) override;
    quint32 RasEnumConnectionsA(std::span<RasConnection> connections, quint32 &byteCount, quint32 &count) override;
    quint32 RasHangUpA(quint32 connection) override;
    void expectTransfer(InternetHandle connection) override;

private:
    struct OpenFile {
        QString path;
        qsizetype position = 0;
    };

    /// Keeps the call and tells whether it shall succeed.
    bool succeeds(const char *operation, const QStringList &arguments);
    InternetHandle nextHandle() { return ++m_lastHandle; }

    InternetHandle m_lastHandle = 0;
    std::map<InternetHandle, std::deque<FindData>> m_listings;
    std::map<InternetHandle, OpenFile> m_openFiles;
};

/// An entry as a listing finds it.
FindData foundFile(const QString &name, quint64 size, const SystemTime &written = {2001, 3, 5, 9, 7, 0});
FindData foundFolder(const QString &name);

} // namespace zephira

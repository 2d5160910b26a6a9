// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/internetoperations.h"

#include <QByteArray>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>

namespace zephira {

/// Operations that record each call with its arguments, in order, and answer as their public members say. The log has
/// one line per call: `FtpDeleteFileA(2, "/a.htm")`. Flags are hexadecimal, texts are in double quotes, and of a block
/// the length is given. By default every call succeeds: handles count up from 1, folders are empty, and reading a file
/// gives its content in `files`.
struct RecordingOperations final : InternetOperations {
    QStringList log;

    /// Operations that fail, and how many more times; -1 means always.
    std::map<QString, int> failures;
    /// The result of FtpGetCurrentDirectoryA.
    QString loginFolder = QStringLiteral("/");
    /// The entries that listings find, by search string.
    std::map<QString, std::deque<FindData>> folders;
    /// File contents by path: those to be read, and those that were written.
    std::map<QString, QByteArray> files;
    std::deque<RasConnection> dialUp;
    /// The calls after which another transfer on their connection was announced. That isn't logged, because it is not
    /// one of the platform's operations.
    QStringList announcedBehind;
    /// If set, called with each call before it is answered.
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

    /// Records the call and returns whether it shall succeed.
    bool succeeds(const char *operation, const QStringList &arguments);
    InternetHandle nextHandle() { return ++m_lastHandle; }

    InternetHandle m_lastHandle = 0;
    std::map<InternetHandle, std::deque<FindData>> m_listings;
    std::map<InternetHandle, OpenFile> m_openFiles;
};

/// An entry as it is found in a listing.
FindData foundFile(const QString &name, quint64 size, const SystemTime &written = {2001, 3, 5, 9, 7, 0});
FindData foundFolder(const QString &name);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/finddata.h"

#include <QString>

#include <span>

namespace zephira {

/// Identifies something that an operation has opened; 0 means none.
using InternetHandle = quint32;

constexpr quint32 INTERNET_OPEN_TYPE_DIRECT = 1;
constexpr quint32 INTERNET_SERVICE_FTP = 1;
constexpr quint32 INTERNET_FLAG_NO_CACHE_WRITE = 0x4000000;
constexpr quint32 INTERNET_FLAG_PASSIVE = 0x8000000;
constexpr quint32 INTERNET_FLAG_EXISTING_CONNECT = 0x20000000;
constexpr quint32 INTERNET_FLAG_RELOAD = 0x80000000;
constexpr quint32 GENERIC_READ = 0x80000000;
constexpr quint32 GENERIC_WRITE = 0x40000000;
constexpr quint32 FTP_TRANSFER_TYPE_BINARY = 2;

/// The size of a RasConnection in bytes as the enumeration expects it in the first one's size field.
constexpr quint32 rasConnectionSize = 412;

/// A dial-up connection.
struct RasConnection {
    quint32 size = 0;
    quint32 handle = 0;
    QString entryName;
};

/// The operations that the file transfer uses, named after those of the platform that they replace. All of them block
/// until they are done. Nothing is thrown; a failed operation returns 0 or false. Handles form a tree: connections
/// belong to the handle returned by InternetOpenA, files and listings to their connection. Closing a handle closes
/// those that belong to it, and an operation on a handle that isn't open (or is of the wrong kind) fails.
///
/// Folders and files are named by their path on the server, separated by "/"; a path that doesn't begin with "/" is
/// relative to the connection's current folder. A text that contains CR, LF or NUL makes the call fail before anything
/// is sent.
class InternetOperations
{
public:
    virtual ~InternetOperations() = default;

    /// The access is always direct: proxies are not used, not even those of the environment.
    virtual InternetHandle InternetOpenA(const QString &agent, quint32 accessType, const QString &proxy,
                                         const QString &proxyBypass, quint32 flags) = 0;

    /// Connects and logs in. With INTERNET_FLAG_PASSIVE the server opens the port for each transfer; without it the
    /// server connects back. Only INTERNET_SERVICE_FTP is supported.
    virtual InternetHandle InternetConnectA(InternetHandle open, const QString &server, quint16 port,
                                            const QString &user, const QString &password, quint32 service,
                                            quint32 flags, quintptr context) = 0;

    /// Writes the current folder, initially the login folder, and a NUL into the buffer, of which the first `length`
    /// characters may be used; the rest stays unchanged. `length` becomes the number of characters written, without the
    /// NUL. Fails without a change if the folder doesn't fit.
    virtual bool FtpGetCurrentDirectoryA(InternetHandle connection, QString &buffer, quint32 &length) = 0;
    virtual bool FtpSetCurrentDirectoryA(InternetHandle connection, const QString &folder) = 0;

    /// Lists a folder: `search` is its path followed by a pattern of `*` and `?` that both files and folders have to
    /// match; `*.*` and `*` match every name. Stores the first entry and returns the handle for the others. Returns 0
    /// after a failure, and for a folder without a matching entry.
    virtual InternetHandle FtpFindFirstFileA(InternetHandle connection, const QString &search, FindData &found,
                                             quint32 flags, quintptr context) = 0;
    /// Stores the next entry; returns false when there is none left.
    virtual bool InternetFindNextFileA(InternetHandle find, FindData &found) = 0;

    /// Opens a file for reading (GENERIC_READ) or writing (GENERIC_WRITE), which replaces it. A connection has one open
    /// file at a time; until that is closed, other operations of the connection fail.
    virtual InternetHandle FtpOpenFileA(InternetHandle connection, const QString &file, quint32 access, quint32 flags,
                                        quintptr context) = 0;
    /// Fills the buffer unless the file ends first: `count` is the number of bytes read, 0 at the end. After a failure,
    /// `count` is the number of bytes that arrived before it.
    virtual bool InternetReadFile(InternetHandle file, char *buffer, quint32 size, quint32 &count) = 0;
    /// Writes the whole block or fails.
    virtual bool InternetWriteFile(InternetHandle file, const char *buffer, quint32 size, quint32 &count) = 0;

    /// Announces that another file of the connection will be opened right after the current one, so that its transfer
    /// can be prepared while the caller finishes with the current one. The platform has no such operation: it only
    /// affects how long the next opening takes, never a result.
    virtual void expectTransfer(InternetHandle connection) { Q_UNUSED(connection) }

    virtual bool FtpCreateDirectoryA(InternetHandle connection, const QString &folder) = 0;
    virtual bool FtpRemoveDirectoryA(InternetHandle connection, const QString &folder) = 0;
    virtual bool FtpDeleteFileA(InternetHandle connection, const QString &file) = 0;
    virtual bool FtpRenameFileA(InternetHandle connection, const QString &from, const QString &to) = 0;

    /// Closes a handle of any kind. 0, or a handle that isn't open, does no harm. A written file is complete on the
    /// server only if this returns true.
    virtual bool InternetCloseHandle(InternetHandle handle) = 0;

    /// Fills in the dial-up connections of the machine. `byteCount` is the available size in bytes and becomes the size
    /// that they take, `count` their number. Returns 0 on success, else an error code.
    virtual quint32 RasEnumConnectionsA(std::span<RasConnection> connections, quint32 &byteCount, quint32 &count) = 0;
    /// Ends a dial-up connection. Returns 0 on success, else an error code.
    virtual quint32 RasHangUpA(quint32 connection) = 0;
};

} // namespace zephira

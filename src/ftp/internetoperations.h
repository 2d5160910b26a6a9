// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/finddata.h"

#include <QString>

#include <span>

namespace zephira {

/// What an operation gives for something that is open; 0 stands for nothing.
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

/// The size of a RasConnection in bytes as the enumeration counts it; it belongs into the size word of the first one.
constexpr quint32 rasConnectionSize = 412;

/// A dial-up connection.
struct RasConnection {
    quint32 size = 0;
    quint32 handle = 0;
    QString entryName;
};

/// The operations that the file transfer is written against, named as those of the platform that they stand for. All of
/// them wait until they are done. Nothing is thrown; a failed operation gives 0 or false. Handles form a tree: those of
/// connections belong to the one that InternetOpenA gave, those of files and listings to their connection; closing one
/// closes what belongs to it, and a handle that isn't open (or is of the wrong kind) makes an operation fail.
///
/// Folders and files are named by their path on the server, divided by "/"; one that doesn't begin so starts at the
/// connection's current folder. A text that holds CR, LF or NUL makes the call fail before anything is sent.
class InternetOperations
{
public:
    virtual ~InternetOperations() = default;

    /// The access is always direct: proxies, also those of the environment, are not used.
    virtual InternetHandle InternetOpenA(const QString &agent, quint32 accessType, const QString &proxy,
                                         const QString &proxyBypass, quint32 flags) = 0;

    /// Connects and logs in. INTERNET_FLAG_PASSIVE lets the server open the port of each transfer; without it the server
    /// connects back. Only INTERNET_SERVICE_FTP is known.
    virtual InternetHandle InternetConnectA(InternetHandle open, const QString &server, quint16 port,
                                            const QString &user, const QString &password, quint32 service,
                                            quint32 flags, quintptr context) = 0;

    /// Writes the current folder, which is the login folder first, and a NUL into the buffer, whose first `length`
    /// characters may be used; the rest of the buffer stays. `length` becomes the number of characters written, without
    /// the NUL. Fails without a change if it doesn't fit.
    virtual bool FtpGetCurrentDirectoryA(InternetHandle connection, QString &buffer, quint32 &length) = 0;
    virtual bool FtpSetCurrentDirectoryA(InternetHandle connection, const QString &folder) = 0;

    /// Lists a folder: `search` is its path followed by a pattern of `*` and `?`, which files and folders alike have to
    /// match; `*.*` and `*` match every name. Gives the first entry and the handle for the others. A folder without a
    /// matching entry gives 0, as a failure does.
    virtual InternetHandle FtpFindFirstFileA(InternetHandle connection, const QString &search, FindData &found,
                                             quint32 flags, quintptr context) = 0;
    /// False when there is none left.
    virtual bool InternetFindNextFileA(InternetHandle find, FindData &found) = 0;

    /// Opens a file for reading (GENERIC_READ) or for writing (GENERIC_WRITE), which makes it anew. A connection has one
    /// open file at a time; until that is closed, other operations of the connection fail.
    virtual InternetHandle FtpOpenFileA(InternetHandle connection, const QString &file, quint32 access, quint32 flags,
                                        quintptr context) = 0;
    /// Fills the buffer, unless the file ends before: `count` is the number of bytes read, 0 at the end. A failure has
    /// a count as well: what arrived before it.
    virtual bool InternetReadFile(InternetHandle file, char *buffer, quint32 size, quint32 &count) = 0;
    /// Writes the whole block, or fails.
    virtual bool InternetWriteFile(InternetHandle file, const char *buffer, quint32 size, quint32 &count) = 0;

    /// Tells that another file of the connection will be opened right behind the one that is open, so that the transfer
    /// can be prepared while the caller puts the open one away. The platform has no such operation: it changes how long
    /// the next opening takes, and no result.
    virtual void expectTransfer(InternetHandle connection) { Q_UNUSED(connection) }

    virtual bool FtpCreateDirectoryA(InternetHandle connection, const QString &folder) = 0;
    virtual bool FtpRemoveDirectoryA(InternetHandle connection, const QString &folder) = 0;
    virtual bool FtpDeleteFileA(InternetHandle connection, const QString &file) = 0;
    virtual bool FtpRenameFileA(InternetHandle connection, const QString &from, const QString &to) = 0;

    /// Closes a handle of any kind. 0, or one that isn't open, does no harm. A file that was written is complete on the
    /// server only if this gives true.
    virtual bool InternetCloseHandle(InternetHandle handle) = 0;

    /// Fills in the dial-up connections of the machine. `byteCount` is the room for them and becomes the room that they
    /// take, `count` their number. Gives 0 on success, else an error's number.
    virtual quint32 RasEnumConnectionsA(std::span<RasConnection> connections, quint32 &byteCount, quint32 &count) = 0;
    /// Ends a dial-up connection. Gives 0 on success, else an error's number.
    virtual quint32 RasHangUpA(quint32 connection) = 0;
};

} // namespace zephira

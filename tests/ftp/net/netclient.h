// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/net/netoperations.h"
#include "support/fakes.h"

#include <QByteArray>
#include <QStringList>

namespace zephira {

/// The real operations with one connection, and the longer tasks that tests need.
class NetClient
{
public:
    explicit NetClient(std::chrono::milliseconds limit = NetOperations::usualLimit) : operations(clock, limit) {}

    /// Opens and connects; the handles are 0 after a failure.
    bool connectTo(const QString &host, quint16 port, const QString &user = QStringLiteral("anonymous"),
                   const QString &password = QStringLiteral("secret"), quint32 flags = INTERNET_FLAG_PASSIVE)
    {
        open = operations.InternetOpenA(QStringLiteral("Test"), INTERNET_OPEN_TYPE_DIRECT, {}, {},
                                        INTERNET_FLAG_NO_CACHE_WRITE);
        connection = operations.InternetConnectA(open, host, port, user, password, INTERNET_SERVICE_FTP, flags, 0);
        return connection != 0;
    }

    /// The result of FtpGetCurrentDirectoryA, up to the NUL; "failed" after a failure.
    QString currentFolder()
    {
        constexpr quint32 room = 260;
        quint32 length = room;
        QString buffer(room, u' ');
        if (!operations.FtpGetCurrentDirectoryA(connection, buffer, length))
            return QStringLiteral("failed");
        return buffer.first(buffer.indexOf(QChar(u'\0')));
    }

    /// The entries that a search finds, sorted: "folder sub", "file 5 a.htm".
    QStringList list(const QString &search)
    {
        QStringList lines;
        FindData entry;
        const InternetHandle find = operations.FtpFindFirstFileA(connection, search, entry, INTERNET_FLAG_RELOAD, 0);
        for (bool found = find != 0; found; found = operations.InternetFindNextFileA(find, entry)) {
            lines.append(entry.isFolder() ? QStringLiteral("folder ") + entry.fileName
                                          : QStringLiteral("file %1 ").arg(entry.sizeLow) + entry.fileName);
        }
        operations.InternetCloseHandle(find);
        lines.sort();
        return lines;
    }

    /// Stores a file in blocks of 1024 bytes.
    bool put(const QString &path, const QByteArray &content)
    {
        const InternetHandle file = openFile(path, GENERIC_WRITE);
        bool ok = file != 0;
        for (qsizetype at = 0; ok && at < content.size(); at += block) {
            const auto size = static_cast<quint32>(std::min<qsizetype>(block, content.size() - at));
            quint32 count = 0;
            ok = operations.InternetWriteFile(file, content.constData() + at, size, count) && count == size;
        }
        return operations.InternetCloseHandle(file) && ok;
    }

    /// The content of a file, read in blocks of 1024 bytes; `counts` then has the size of each block, and `ok` tells
    /// whether the file is complete.
    QByteArray get(const QString &path, bool &ok)
    {
        counts.clear();
        const InternetHandle file = openFile(path, GENERIC_READ);
        QByteArray content;
        char buffer[block];
        quint32 count = 0;
        do {
            ok = operations.InternetReadFile(file, buffer, block, count);
            content.append(buffer, count);
            counts.append(count);
        } while (ok && count == block);
        operations.InternetCloseHandle(file);
        return content;
    }

    static constexpr quint32 block = 1024;

    FakeClock clock;
    NetOperations operations;
    InternetHandle open = 0;
    InternetHandle connection = 0;
    /// Whether get() and put() announce that another file will be opened right after theirs.
    bool anotherFollows = false;
    /// The sizes of the blocks of the last file read.
    QList<quint32> counts;

private:
    InternetHandle openFile(const QString &path, quint32 access)
    {
        const InternetHandle file = operations.FtpOpenFileA(connection, path, access, FTP_TRANSFER_TYPE_BINARY, 0);
        if (anotherFollows)
            operations.expectTransfer(connection);
        return file;
    }
};

} // namespace zephira

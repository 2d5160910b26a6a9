// SPDX-License-Identifier: GPL-3.0-or-later
// ftpprobe get HOST PORT REMOTE LOCALDIR: stores the server's file REMOTE in LOCALDIR.
// ftpprobe put HOST PORT LOCAL REMOTE: stores the file LOCAL on the server as REMOTE.
// ftpprobe list HOST PORT [PATTERN]: prints kind, size, time and name of each entry of the login folder, or of those
// that match a search path. All log in anonymously, use passive mode, and print nothing but the listing.
#include "core/clock.h"
#include "files/diskfilestore.h"
#include "ftp/net/netoperations.h"
#include "ftp/safenames.h"
#include "probes/fail.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using namespace zephira;

constexpr quint32 blockSize = 1024;
constexpr qsizetype pieceSize = 1024 * blockSize;

int get(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    const QString name = arguments[0].section(u'/', -1);
    if (!isSafeRemoteName(name))
        return fail(u"this can't be the name of a file here"_s);
    const InternetHandle file =
        operations.FtpOpenFileA(connection, arguments[0], GENERIC_READ, FTP_TRANSFER_TYPE_BINARY, 0);
    if (file == 0)
        return fail(u"the file can't be opened on the server"_s);
    // In pieces, so that no growing buffer is ever copied.
    std::vector<QByteArray> pieces;
    quint32 count = 0;
    bool ok = true;
    do {
        if (pieces.empty() || pieces.back().size() + blockSize > pieceSize)
            pieces.emplace_back().reserve(pieceSize);
        char block[blockSize];
        ok = operations.InternetReadFile(file, block, blockSize, count);
        pieces.back().append(block, count);
    } while (ok && count == blockSize);
    if (!ok)
        return fail(u"the file did not arrive whole"_s);
    DiskFileStore files;
    const std::vector<QByteArrayView> views(pieces.begin(), pieces.end());
    const Result<void> written = files.write(arguments[1] + u'/' + name, views);
    return written ? 0 : fail(written.error().sentence);
}

int put(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    QFile local(arguments[0]);
    if (!local.open(QIODevice::ReadOnly))
        return fail(local.errorString());
    const InternetHandle file =
        operations.FtpOpenFileA(connection, arguments[1], GENERIC_WRITE, FTP_TRANSFER_TYPE_BINARY, 0);
    if (file == 0)
        return fail(u"the file can't be made on the server"_s);
    char block[blockSize];
    qint64 size = 0;
    bool ok = true;
    while (ok && (size = local.read(block, blockSize)) > 0) {
        quint32 count = 0;
        ok = operations.InternetWriteFile(file, block, static_cast<quint32>(size), count);
    }
    const bool complete = operations.InternetCloseHandle(file);
    return ok && size == 0 && complete ? 0 : fail(u"the server does not have the whole file"_s);
}

int list(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    FindData entry;
    const InternetHandle find =
        operations.FtpFindFirstFileA(connection, arguments.value(0, u"*.*"_s), entry, INTERNET_FLAG_RELOAD, 0);
    for (bool found = find != 0; found; found = operations.InternetFindNextFileA(find, entry)) {
        SystemTime time;
        FileTimeToSystemTime(entry.lastWriteTime, time);
        const quint64 size = (static_cast<quint64>(entry.sizeHigh) << 32) | entry.sizeLow;
        std::printf("%s\t%llu\t%04d-%02d-%02d %02d:%02d\t%s\n", entry.isFolder() ? "folder" : "file",
                    static_cast<unsigned long long>(size), time.year, time.month, time.day, time.hour, time.minute,
                    qUtf8Printable(entry.fileName));
    }
    return 0;
}

/// A command, and how many arguments it takes after host and port.
struct Task {
    const char16_t *name;
    qsizetype fewest;
    qsizetype most;
    int (*run)(InternetOperations &operations, InternetHandle connection, const QStringList &arguments);
};

constexpr Task tasks[] = {{u"get", 2, 2, get}, {u"put", 2, 2, put}, {u"list", 0, 1, list}};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QStringList rest = arguments.mid(4);
    for (const Task &task : tasks) {
        if (arguments.value(1) != QStringView(task.name) || arguments.size() < 4 || rest.size() < task.fewest
            || rest.size() > task.most)
            continue;
        const SystemClock clock;
        NetOperations operations(clock);
        const InternetHandle open = operations.InternetOpenA(u"ftpprobe"_s, INTERNET_OPEN_TYPE_DIRECT, {}, {}, 0);
        const InternetHandle connection =
            operations.InternetConnectA(open, arguments[2], arguments[3].toUShort(), u"anonymous"_s,
                                        u"anonymous@example.com"_s, INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
        return connection != 0 ? task.run(operations, connection, rest) : fail(u"the server lets nobody in"_s);
    }
    return fail(
        u"usage: ftpprobe get HOST PORT REMOTE LOCALDIR | put HOST PORT LOCAL REMOTE | list HOST PORT [PATTERN]"_s);
}

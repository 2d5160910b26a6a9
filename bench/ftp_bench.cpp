// SPDX-License-Identifier: GPL-3.0-or-later
// ftp_bench down HOST PORT REMOTE: reads a server's file in the program's blocks, and forgets them.
// ftp_bench up HOST PORT LOCAL REMOTE: stores a file on the server.
// ftp_bench mirror HOST PORT FOLDER LOCALDIR: stores the files of a server's folder in a local one.
// Each logs in without a name. The time is taken from outside, with start and login, as that of the peers is.
#include "controls/clock.h"
#include "ftp/net/netoperations.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr quint32 blockSize = 1024;

/// Calls `take` with each block of a server's file.
template<typename Take>
bool receive(InternetOperations &operations, InternetHandle connection, const QString &path, Take take)
{
    const InternetHandle file = operations.FtpOpenFileA(connection, path, GENERIC_READ, FTP_TRANSFER_TYPE_BINARY, 0);
    char block[blockSize];
    quint32 count = 0;
    bool ok = true;
    do {
        ok = operations.InternetReadFile(file, block, blockSize, count);
        take(block, count);
    } while (ok && count == blockSize);
    operations.InternetCloseHandle(file);
    return ok;
}

bool down(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    return receive(operations, connection, arguments[0], [](const char *, quint32) {});
}

bool up(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    QFile local(arguments[0]);
    const InternetHandle file =
        operations.FtpOpenFileA(connection, arguments[1], GENERIC_WRITE, FTP_TRANSFER_TYPE_BINARY, 0);
    bool ok = file != 0 && local.open(QIODevice::ReadOnly);
    char block[blockSize];
    while (ok) {
        const qint64 size = local.read(block, blockSize);
        if (size <= 0)
            break;
        quint32 count = 0;
        ok = operations.InternetWriteFile(file, block, static_cast<quint32>(size), count);
    }
    return operations.InternetCloseHandle(file) && ok;
}

bool mirror(InternetOperations &operations, InternetHandle connection, const QStringList &arguments)
{
    FindData entry;
    const InternetHandle find =
        operations.FtpFindFirstFileA(connection, arguments[0] + u"/*.*"_s, entry, INTERNET_FLAG_RELOAD, 0);
    bool ok = find != 0;
    for (bool found = ok; ok && found; found = operations.InternetFindNextFileA(find, entry)) {
        QByteArray content;
        ok = receive(operations, connection, arguments[0] + u'/' + entry.fileName,
                     [&](const char *block, quint32 count) { content.append(block, count); });
        QFile file(arguments[1] + u'/' + entry.fileName);
        ok = ok && file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size();
    }
    return ok;
}

struct Task {
    const char16_t *name;
    qsizetype arguments;
    bool (*run)(InternetOperations &operations, InternetHandle connection, const QStringList &arguments);
};

constexpr Task tasks[] = {{u"down", 1, down}, {u"up", 2, up}, {u"mirror", 2, mirror}};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    for (const Task &task : tasks) {
        if (arguments.value(1) != QStringView(task.name) || arguments.size() != 4 + task.arguments)
            continue;
        const SystemClock clock;
        NetOperations operations(clock);
        const InternetHandle open = operations.InternetOpenA(u"ftp_bench"_s, INTERNET_OPEN_TYPE_DIRECT, {}, {}, 0);
        const InternetHandle connection = operations.InternetConnectA(
            open, arguments[2], arguments[3].toUShort(), {}, {}, INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
        return connection != 0 && task.run(operations, connection, arguments.mid(4)) ? 0 : 1;
    }
    std::fputs("usage: ftp_bench down|up|mirror HOST PORT FILE...\n", stderr);
    return 2;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// ftp_bench down HOST PORT REMOTE: reads a server's file in blocks of the program's size, and discards them.
// ftp_bench get HOST PORT FOLDER NAME LOCALDIR: downloads a server's file into a local folder.
// ftp_bench up HOST PORT LOCALDIR NAME FOLDER: uploads a local file into a server's folder.
// ftp_bench mirror HOST PORT FOLDER LOCALDIR: downloads all files of a server's folder.
// Each logs in anonymously. The time is measured from outside, including start and login, as for the other programs.
#include "bench/noprompts.h"
#include "core/clock.h"
#include "files/diskfilestore.h"
#include "ftp/ftpclient.h"
#include "ftp/net/netoperations.h"
#include "ftp/remotelisting.h"
#include "ftp/sessiondisplay.h"
#include "ftp/transferengine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Counts the warnings; the other messages are those at the end of a run.
struct CountingPrompts final : NoPrompts {
    Answer ask(const Question &question) override
    {
        failures += question.icon == Question::Icon::Exclamation;
        return Answer::Ok;
    }

    int failures = 0;
};

/// A progress window that shows nothing.
struct BlankWindow final : LogDisplay, PanelDisplay {
    void log(LogEntry, const QStringList &) override {}
    void clearLog() override {}
    void setPanel(int, const QString &) override {}
    void setBusy(bool) override {}
};

struct BlankDisplay final : TransferDisplay {
    void beginRun(qint64, double) override {}
    void beginFile(int, const QString &, double) override {}
    void moved(const TransferProgress &) override {}
    void endFile(const TransferProgress &) override {}
    void showAll() override {}
};

/// Runs a queue through the program's own engine.
bool transfer(FtpClient &client, const TransferQueue &queue)
{
    DiskFileStore files;
    CountingPrompts prompts;
    BlankWindow window;
    BlankDisplay display;
    QElapsedTimer time;
    time.start();
    TransferEngine engine(client, files, prompts, {window, window, display},
                          [&time] { return static_cast<quint32>(time.elapsed()); });
    return engine.run(queue) == TransferEngine::Outcome::Completed && prompts.failures == 0;
}

bool down(FtpClient &client, const QStringList &arguments)
{
    InternetOperations &operations = client.operations;
    const InternetHandle file = operations.FtpOpenFileA(client.session.ftpConnectHandle, arguments[0], GENERIC_READ,
                                                        FTP_TRANSFER_TYPE_BINARY, 0);
    char block[TransferEngine::blockSize];
    quint32 count = 0;
    bool ok = true;
    do {
        ok = operations.InternetReadFile(file, block, TransferEngine::blockSize, count);
    } while (ok && count == TransferEngine::blockSize);
    operations.InternetCloseHandle(file);
    return ok;
}

bool get(FtpClient &client, const QStringList &arguments)
{
    client.session.ftpRemoteFolder = arguments[0] + u'/';
    client.session.ftpLocalFolder = arguments[2] + u'/';
    return transfer(client, {TransferQueue::Direction::Download, {{arguments[1], 0}}});
}

bool up(FtpClient &client, const QStringList &arguments)
{
    client.session.ftpLocalFolder = arguments[0] + u'/';
    client.session.ftpRemoteFolder = arguments[2] + u'/';
    const qint64 size = QFileInfo(client.session.ftpLocalFolder + arguments[1]).size();
    return transfer(client, {TransferQueue::Direction::Upload, {{arguments[1], size}}});
}

bool mirror(FtpClient &client, const QStringList &arguments)
{
    client.session.ftpRemoteFolder = arguments[0] + u'/';
    client.session.ftpLocalFolder = arguments[1] + u'/';
    const RemoteListing listing = readRemoteListing(client.operations, client.session.ftpConnectHandle,
                                                    client.session.ftpRemoteFolder + u"*.*"_s);
    TransferQueue queue;
    for (const FileRow &file : listing.files)
        queue.files.push_back({file.name, file.bytes.toLongLong()});
    return !queue.files.empty() && transfer(client, queue);
}

struct Task {
    const char16_t *name;
    qsizetype arguments;
    bool (*run)(FtpClient &client, const QStringList &arguments);
};

constexpr Task tasks[] = {{u"down", 1, down}, {u"get", 3, get}, {u"up", 3, up}, {u"mirror", 2, mirror}};

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
        FtpClient client{.operations = operations};
        client.session.ftpOpenHandle = operations.InternetOpenA(u"ftp_bench"_s, INTERNET_OPEN_TYPE_DIRECT, {}, {}, 0);
        client.session.ftpConnectHandle =
            operations.InternetConnectA(client.session.ftpOpenHandle, arguments[2], arguments[3].toUShort(), {}, {},
                                        INTERNET_SERVICE_FTP, INTERNET_FLAG_PASSIVE, 0);
        return client.session.isConnected() && task.run(client, arguments.mid(4)) ? 0 : 1;
    }
    std::fputs("usage: ftp_bench down|get|up|mirror HOST PORT ARGUMENT...\n", stderr);
    return 2;
}

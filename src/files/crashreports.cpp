// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/crashreports.h"

#include "core/paths.h"
#include "files/fileerror.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <execinfo.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr auto timeFormat = "yyyyMMdd-HHmmss-zzz";

struct CrashSignal {
    int number;
    const char *name;
};

constexpr CrashSignal crashSignals[] = {
    {SIGSEGV, "SIGSEGV"}, {SIGABRT, "SIGABRT"}, {SIGBUS, "SIGBUS"}, {SIGFPE, "SIGFPE"}, {SIGILL, "SIGILL"},
};

/// Everything that the handler needs, made before, because memory can't be allocated in a crash.
struct Watch {
    std::array<char, 4096> folder;
    std::array<char, 4096> path;
    std::array<char, 512> heading;
    /// A stack of its own, for when the other one is full.
    alignas(16) std::array<char, 65536> stack;
    pid_t process;
    std::atomic<bool> listsCalls;
    std::atomic<bool> isBusy;
};

/// A global, because a signal handler is called without arguments.
Watch watch;
static_assert(std::atomic<bool>::is_always_lock_free);

void put(int file, const char *text)
{
    std::size_t left = std::strlen(text);
    while (left > 0) {
        const ssize_t written = ::write(file, text, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return;
        text += written;
        left -= static_cast<std::size_t>(written);
    }
}

void writeReport(int number)
{
    ::mkdir(watch.folder.data(), 0700);
    const int file = ::open(watch.path.data(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    put(file, watch.heading.data());
    for (const CrashSignal &each : crashSignals) {
        if (each.number == number)
            put(file, each.name);
    }
    if (watch.listsCalls) {
        put(file, "\nCalls, the innermost first:\n");
        constexpr int most = 128;
        void *calls[most];
        ::backtrace_symbols_fd(calls, ::backtrace(calls, most), file);
    } else {
        put(file, "\nThe calls aren't known, because the program was still starting.\n");
    }
    ::close(file);
}

/// The signal handler: the program is broken, so it does only what is safe anywhere. The signals are blocked meanwhile,
/// and another crash in here ends the process at once.
void crashed(int number)
{
    if (watch.isBusy.exchange(true)) {
        // Another thread is writing the report, and then the process ends.
        for (;;)
            ::pause();
    }
    constexpr unsigned patience = 10;
    ::alarm(patience); // However it may hang.
    // Not in a child of the program that is about to run another one.
    if (::getpid() == watch.process)
        writeReport(number);
    ::signal(number, SIG_DFL);
    ::raise(number);
}

template<std::size_t size>
bool copyInto(std::array<char, size> &target, const QByteArray &text)
{
    if (static_cast<std::size_t>(text.size()) >= size)
        return false;
    std::ranges::copy(text, target.begin());
    target[static_cast<std::size_t>(text.size())] = '\0';
    return true;
}

} // namespace

CrashWatch::CrashWatch(const QString &folder)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    watch.process = ::getpid();
    const QByteArray path = QFile::encodeName(folder) + "/crash-" + now.toString(QLatin1String(timeFormat)).toLatin1()
        + '-' + QByteArray::number(static_cast<qint64>(watch.process)) + ".txt";
    const QByteArray heading = "Zephira " ZEPHIRA_VERSION
                               " crashed. This report stays on this machine, and nothing of a "
                               "document is in it.\nQt: "
        + QByteArray(qVersion()) + "\nStarted: " + now.toString(Qt::ISODate).toLatin1() + "\nSignal: ";
    if (!copyInto(watch.folder, QFile::encodeName(folder)) || !copyInto(watch.path, path)
        || !copyInto(watch.heading, heading))
        return;
    watch.isBusy = false;

    stack_t stack = {};
    if (::sigaltstack(nullptr, &stack) == 0 && (stack.ss_flags & SS_DISABLE) != 0) {
        stack = {};
        stack.ss_sp = watch.stack.data();
        stack.ss_size = watch.stack.size();
        ::sigaltstack(&stack, nullptr);
    }
    struct sigaction action = {};
    action.sa_handler = crashed;
    action.sa_flags = SA_ONSTACK;
    for (const CrashSignal &each : crashSignals)
        ::sigaddset(&action.sa_mask, each.number);
    for (const CrashSignal &each : crashSignals) {
        struct sigaction before = {};
        if (::sigaction(each.number, nullptr, &before) == 0 && before.sa_handler == SIG_DFL)
            ::sigaction(each.number, &action, nullptr);
    }
}

CrashWatch::~CrashWatch()
{
    for (const CrashSignal &each : crashSignals) {
        struct sigaction before = {};
        if (::sigaction(each.number, nullptr, &before) == 0 && before.sa_handler == crashed)
            ::signal(each.number, SIG_DFL);
    }
    stack_t stack = {};
    if (::sigaltstack(nullptr, &stack) == 0 && stack.ss_sp == watch.stack.data()) {
        stack.ss_flags = SS_DISABLE;
        ::sigaltstack(&stack, nullptr);
    }
    watch.listsCalls = false;
}

void CrashWatch::prepareCallList()
{
    // The first call loads a library and so allocates memory.
    void *call[1];
    ::backtrace(call, 1);
    watch.listsCalls = true;
}

void forgoCoreFiles()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_CORE, &limit) != 0)
        return;
    // Programs that the user starts from here may raise it again.
    limit.rlim_cur = 0;
    ::setrlimit(RLIMIT_CORE, &limit);
}

QList<CrashReport> crashReports(const QString &folder)
{
    static const QRegularExpression pattern(uR"(^crash-(\d{8}-\d{6}-\d{3})-\d+\.txt$)"_s);
    QList<CrashReport> reports;
    const QDir dir(folder);
    // Alphabetical order of the names is also the order of their age.
    QStringList names = dir.entryList({u"crash-*"_s}, QDir::Files | QDir::Hidden, QDir::Name);
    std::ranges::reverse(names);
    for (const QString &name : std::as_const(names)) {
        const QRegularExpressionMatch match = pattern.match(name);
        if (!match.hasMatch())
            continue;
        if (reports.size() == keptCrashReports) {
            QFile::remove(dir.filePath(name));
            continue;
        }
        QDateTime began = QDateTime::fromString(match.captured(1), QLatin1String(timeFormat));
        began.setTimeSpec(Qt::UTC);
        reports.append({dir.filePath(name), began.toLocalTime()});
    }
    return reports;
}

Result<void> putAside(const CrashReport &report)
{
    const QString name = lastName(report.path);
    const QString kept = report.path.chopped(name.size()) + u"kept-"_s + name;
    if (std::rename(QFile::encodeName(report.path).constData(), QFile::encodeName(kept).constData()) != 0)
        return saveError(kept, errno);
    return {};
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
// soak [--steps N] [--seed N] [--tell]   does N random things in the real window, and fails if it crashes, hangs or keeps
//                                        more and more memory, descriptors or temporary files. The same seed does the same
//                                        again, as far as time plays no part. --tell prints each step.
#include "soak/soakdesk.h"
#include "soak/soakmeter.h"
#include "soak/soakuser.h"
#include "soak/writefence.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <execinfo.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#    include <sanitizer/common_interface_defs.h>
#endif

using namespace zephira;
using namespace Qt::StringLiterals;

namespace {

/// The step that is being done, for the reports of a sudden end.
std::atomic<int> currentStep = 0;
std::array<char, 256> currentAction;
quint32 currentSeed = 0;

void tellWhere()
{
    std::array<char, 400> line;
    const int length = std::snprintf(line.data(), line.size(), "soak: seed %u, step %d: %s\n", currentSeed,
                                     currentStep.load(), currentAction.data());
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), static_cast<std::size_t>(length));
}

void endByFault(int number)
{
    tellWhere();
    std::array<void *, 60> calls;
    backtrace_symbols_fd(calls.data(), backtrace(calls.data(), static_cast<int>(calls.size())), STDERR_FILENO);
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void watchFaults()
{
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(tellWhere);
#else
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(number, endByFault);
#endif
    std::signal(SIGABRT, endByFault);
}

/// Ends the program if a step takes longer than this.
constexpr std::chrono::minutes longestStep{2};

/// It is the window's thread that ends itself then, so that the list of calls shows where it hangs.
void watchProgress()
{
    std::thread([window = pthread_self()] {
        int seen = -1;
        for (;; std::this_thread::sleep_for(longestStep)) {
            const int now = currentStep;
            if (now == seen) {
                std::fputs("soak: the window hangs\n", stderr);
                pthread_kill(window, SIGABRT);
            }
            seen = now;
        }
    }).detach();
}

/// Everything that the program and its libraries write for their user goes below this folder.
void liveIn(const QString &folder)
{
    for (const char *name :
         {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString own = folder + u"/user/"_s + QString::fromLatin1(name).toLower();
        QDir().mkpath(own);
        QFile::setPermissions(own, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(name, QFile::encodeName(own));
    }
    for (const char *name : {"DBUS_SESSION_BUS_ADDRESS", "XDG_CURRENT_DESKTOP", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(name);
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

int soakIn(const QString &folder, int argc, char **argv)
{
    liveIn(folder);
    QApplication application(argc, argv);
    prepareMeasuring();
    QCommandLineParser parser;
    const QCommandLineOption steps(u"steps"_s, {}, u"number"_s, u"100000"_s);
    const QCommandLineOption seed(u"seed"_s, {}, u"number"_s, u"1"_s);
    const QCommandLineOption tell(u"tell"_s);
    parser.addOptions({steps, seed, tell});
    parser.process(application);
    QTextStream out(stdout);

    if (const Result<void> fenced = fenceWrites({folder, u"/dev"_s, u"/proc/self"_s}); !fenced) {
        out << "The soak can't protect this machine's files: " << fenced.error().sentence << '\n';
        return EXIT_FAILURE;
    }
    watchFaults();
    watchProgress();
    currentSeed = parser.value(seed).toUInt();

    SoakDesk desk(folder);
    const bool isTold = parser.isSet(tell);
    SoakUser user(
        desk, {.seed = currentSeed, .steps = parser.value(steps).toInt(), .tell = [&](int step, const QString &what) {
                   currentStep = step;
                   qstrncpy(currentAction.data(), what.toUtf8().constData(), currentAction.size());
                   if (isTold)
                       out << step << ' ' << what << Qt::endl;
               }});
    std::vector<SoakSample> samples;
    QObject::connect(&user, &SoakUser::resting, &application, [&](int step) {
        samples.push_back(measureProcess(step, qEnvironmentVariable("TMPDIR")));
        out << described(samples.back()) << Qt::endl;
    });
    // Not quit(), which would close the windows, and ask about changes when nobody answers any more.
    QObject::connect(&user, &SoakUser::finished, &application, [] { QApplication::exit(); });
    user.start();
    desk.open();
    QApplication::exec();

    QStringList faults = growthOf(samples);
    if (!user.fault().isEmpty()) {
        tellWhere();
        faults.append(user.fault());
    }
    for (const QString &fault : std::as_const(faults))
        out << "FAULT: " << fault << '\n';
    return faults.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

/// The soak runs in a process of its own, which can't remove its folder, and whatever becomes of it, the folder goes.
int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    const pid_t soaking = fork();
    if (soaking == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        std::exit(soakIn(folder.path(), argc, argv));
    }
    int status = 0;
    if (soaking < 0 || waitpid(soaking, &status, 0) != soaking)
        return EXIT_FAILURE;
    if (WIFSIGNALED(status))
        std::fprintf(stderr, "soak: ended by signal %d\n", WTERMSIG(status));
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}

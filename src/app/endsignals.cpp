// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/endsignals.h"

#include <QSocketNotifier>
#include <QTimer>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace zephira {

namespace {

/// Time for keys that were pressed before the signal to come through the queues of the display and the event loop.
constexpr auto inputDelay = 50ms;

/// The write end of the pipe, the only state that the signal handler uses.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free);

constexpr int endings[] = {SIGTERM, SIGHUP, SIGINT};

/// The signal handler: may interrupt the program anywhere, so it does only what is safe then.
void tell(int)
{
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = error;
}

} // namespace

EndSignals::EndSignals(QObject *owner) : QObject(owner)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // The signals keep their default effect.
    m_readEnd = ends[0];
    writeEnd = ends[1];
    auto *notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(m_readEnd, &byte, 1) == 1) {}
        QTimer::singleShot(inputDelay, this, &EndSignals::received);
    });
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int number : endings) {
        struct sigaction before = {};
        // A signal that is ignored from the start stays ignored, for example SIGHUP under nohup.
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

EndSignals::~EndSignals()
{
    if (m_readEnd < 0)
        return;
    for (const int number : endings) {
        struct sigaction before = {};
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler == tell)
            signal(number, SIG_DFL);
    }
    close(writeEnd.exchange(-1));
    close(m_readEnd);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"

namespace zephira {

class CommandRouter;
class frmmain;
class RecoveryKeeper;
struct WindowServices;

/// How the window comes and goes: the commands that start the program anew or end it, and what an end leaves behind.
class WindowEnd final : public WindowCommands
{
public:
    WindowEnd(frmmain &window, const WindowServices &services, RecoveryKeeper &recovery)
        : m_window(window), m_services(services), m_recovery(recovery)
    {}

    /// Asks about changes, then leaves everything in order and ends the process. False if the user chose to stay.
    bool close();

    /// The system ends the process, and nobody can be asked: what is not saved stays as a recovery copy.
    void endNow();
    /// The session ends. Where the user can be asked, it may go on only if the user agrees; else what is not saved is
    /// written into a recovery copy, and it goes on.
    bool agreesToSessionEnd(bool canAsk);

    // WindowCommands
    void newWindow() override;
    void exitNow() override;
    void updateProgram() override;
    void setHighlightMode(int mode) override;

private:
    void start(const QString &program, const QStringList &arguments);
    void unload();
    void keepWhatIsUnsaved();
    void endProcess();

    frmmain &m_window;
    const WindowServices &m_services;
    RecoveryKeeper &m_recovery;
};

} // namespace zephira

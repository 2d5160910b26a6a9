// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commandparts.h"

namespace zephira {

class CommandRouter;
class frmmain;
class RecoveryKeeper;
struct WindowServices;

/// Opening and closing windows: the commands that start another instance or end this one, and the clean-up at the end.
class WindowEnd final : public WindowCommands
{
public:
    WindowEnd(frmmain &window, const WindowServices &services, RecoveryKeeper &recovery)
        : m_window(window), m_services(services), m_recovery(recovery)
    {}

    /// Asks about unsaved changes, then cleans up and ends the process. Returns false if the user cancelled.
    bool close();

    /// Ends the process without asking, when the system requests it: unsaved text stays as a recovery copy.
    void endNow();
    /// The desktop session is about to end. Returns whether it may: if the user can be asked, only if the user agrees;
    /// otherwise always, after unsaved text was written to a recovery copy.
    bool agreesToSessionEnd(bool canAsk);
    /// The session is over: cleans up, keeps a recovery copy of unsaved text, and ends the process.
    void endWithSession();
    /// The process ends unexpectedly and without its window: keeps a recovery copy of the unsaved text that is
    /// available at once.
    void keepAtSuddenEnd();

    // WindowCommands
    void newWindow() override;
    void exitNow() override;
    void updateProgram() override;
    void setHighlightMode(int mode) override;

private:
    void start(const QString &program, const QStringList &arguments);
    void unload();
    void leaveInOrder();
    void keepWhatIsUnsaved();
    void endProcess();

    frmmain &m_window;
    const WindowServices &m_services;
    RecoveryKeeper &m_recovery;
    bool m_hasEnded = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowend.h"

#include "app/frmmain.h"
#include "app/pluginmenu.h"
#include "commands/commandrouter.h"
#include "core/errorstyles.h"
#include "core/shell.h"
#include "desktop/formposition.h"
#include "desktop/modalformopener.h"
#include "document/document.h"
#include "document/recoverykeeper.h"

using namespace Qt::StringLiterals;

namespace zephira {

bool WindowEnd::close()
{
    if (!m_window.document().askToClose())
        return false;
    unload();
    endProcess();
    return true;
}

void WindowEnd::keepWhatIsUnsaved()
{
    const Document &document = m_window.document();
    if (document.docModified() || document.holdsDesignersWork())
        m_recovery.writeNow();
    else
        m_recovery.discard();
}

void WindowEnd::endNow()
{
    keepWhatIsUnsaved();
    m_window.document().discardPreview();
    endProcess();
}

bool WindowEnd::agreesToSessionEnd(bool canAsk)
{
    if (canAsk && !m_window.document().askToClose())
        return false;
    // Done whatever the answer was: the session may continue after all, and a superfluous copy can be deleted with a
    // click.
    keepWhatIsUnsaved();
    return true;
}

void WindowEnd::endWithSession()
{
    // The application is also told to quit when its last window has closed, and by then everything is done.
    if (m_hasEnded)
        return;
    leaveInOrder();
    ignoringErrors({[this] { keepWhatIsUnsaved(); }});
    endProcess();
}

void WindowEnd::keepAtSuddenEnd()
{
    // The designer's text could only be requested from its page; its last copy is at most a few seconds old.
    const Document &document = m_window.document();
    if (document.docModified() && !document.holdsDesignersWork())
        m_recovery.writeNow();
}

void WindowEnd::start(const QString &program, const QStringList &arguments)
{
    const Result<void> started = m_services.shell.start(program, arguments);
    if (!started)
        tellError(m_services.prompts, started.error());
}

void WindowEnd::newWindow()
{
    start(m_services.executable, {u"/nodialog"_s});
}

void WindowEnd::exitNow()
{
    m_recovery.discard();
    endProcess();
}

void WindowEnd::updateProgram()
{
    start(m_services.appPath + u"/update.exe"_s, {});
    if (!m_window.close()) {
        // The process ends in any case; unsaved text stays as a recovery copy.
        m_recovery.writeNow();
        endProcess();
    }
}

void WindowEnd::setHighlightMode(int mode)
{
    m_window.setHighlightMode(mode);
}

/// Ends the process as soon as the running commands have returned.
void WindowEnd::endProcess()
{
    m_hasEnded = true;
    m_window.router().abandon();
    m_window.plugins().abandon();
    m_services.endProcess();
}

/// The clean-up when the window closes. Each step runs even if the previous one failed.
void WindowEnd::unload()
{
    leaveInOrder();
    ignoringErrors({[this] {
        // A text whose save failed stays as a recovery copy.
        if (m_window.document().saveFailedAtClose())
            m_recovery.writeNow();
        else
            m_recovery.discard();
    }});
}

void WindowEnd::leaveInOrder()
{
    ignoringErrors({
        [this] { FormPosition(m_window, true, m_services.settings); },
        [this] { m_window.forms().closeAll(); },
        [this] { m_window.document().discardPreview(); },
    });
}

} // namespace zephira

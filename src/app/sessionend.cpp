// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sessionend.h"

#include "app/windowend.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

namespace zephira {

SessionEnd::SessionEnd(QGuiApplication &application, WindowEnd &end, QObject *owner) : QObject(owner), m_end(end)
{
    application.installEventFilter(this);
    // The program doesn't reopen its last document, so a later session needn't start it again.
    connect(&application, &QGuiApplication::saveStateRequest, this,
            [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
    connect(&application, &QGuiApplication::commitDataRequest, this, [this](QSessionManager &session) {
        session.setRestartHint(QSessionManager::RestartNever);
        const bool canAsk = session.allowsInteraction();
        const bool agreed = m_end.agreesToSessionEnd(canAsk);
        if (canAsk)
            session.release();
        if (!agreed)
            session.cancel();
    });
}

/// The session tells the application to quit. That alone would close the window and so ask a second time, when nobody
/// can answer any more.
bool SessionEnd::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return QObject::eventFilter(watched, event);
    m_end.endWithSession();
    return true;
}

} // namespace zephira

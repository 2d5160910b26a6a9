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
    // The last document isn't opened again, so there is nothing that a later session should start.
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

/// The session tells the application to quit, which by itself would close the window and so ask a second time, when nobody
/// is there any more to answer.
bool SessionEnd::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Quit)
        return QObject::eventFilter(watched, event);
    m_end.endWithSession();
    return true;
}

} // namespace zephira

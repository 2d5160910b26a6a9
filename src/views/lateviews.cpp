// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lateviews.h"

#include <utility>

namespace zephira {

void LateDesigner::attach(Designer &designer)
{
    m_designer = &designer;
    m_designer->setEvents(std::exchange(m_events, {}));
}

void LateDesigner::finishLeaving()
{
    if (m_finishLeaving)
        m_finishLeaving();
}

void LateDesigner::setEvents(DesignerEvents events)
{
    if (isAttached())
        m_designer->setEvents(std::move(events));
    else
        m_events = std::move(events);
}

void LateBrowser::attach(Browser &browser)
{
    m_browser = &browser;
    if (m_navigateComplete)
        m_browser->onNavigateComplete(std::exchange(m_navigateComplete, {}));
    if (m_processLost)
        m_browser->onProcessLost(std::exchange(m_processLost, {}));
    if (m_remoteRefused)
        m_browser->onRemoteRefused(std::exchange(m_remoteRefused, {}));
}

void LateBrowser::onProcessLost(std::function<void()> handler)
{
    if (m_browser)
        m_browser->onProcessLost(std::move(handler));
    else
        m_processLost = std::move(handler);
}

void LateBrowser::setProjectFolder(const QString &folder)
{
    if (m_browser)
        m_browser->setProjectFolder(folder);
}

void LateBrowser::setRemoteAllowed(bool allowed)
{
    if (m_browser)
        m_browser->setRemoteAllowed(allowed);
}

void LateBrowser::onRemoteRefused(std::function<void(const QStringList &)> handler)
{
    if (m_browser)
        m_browser->onRemoteRefused(std::move(handler));
    else
        m_remoteRefused = std::move(handler);
}

void LateBrowser::navigate(const QString &address)
{
    if (m_browser)
        m_browser->navigate(address);
}

void LateBrowser::goBack()
{
    if (m_browser)
        m_browser->goBack();
}

void LateBrowser::goForward()
{
    if (m_browser)
        m_browser->goForward();
}

void LateBrowser::goHome()
{
    if (m_browser)
        m_browser->goHome();
}

void LateBrowser::refresh()
{
    if (m_browser)
        m_browser->refresh();
}

void LateBrowser::stop()
{
    if (m_browser)
        m_browser->stop();
}

QString LateBrowser::locationUrl() const
{
    return m_browser ? m_browser->locationUrl() : QString();
}

void LateBrowser::setHome(const QString &address, FileKind kind)
{
    if (m_browser)
        m_browser->setHome(address, kind);
}

void LateBrowser::onNavigateComplete(std::function<void()> handler)
{
    if (m_browser)
        m_browser->onNavigateComplete(std::move(handler));
    else
        m_navigateComplete = std::move(handler);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/browserwidget.h"

#include "web/browserpage.h"
#include "web/hiddenfocus.h"
#include "web/pageaddress.h"
#include "widgets/inputwatch.h"
#include "widgets/scriptmessagebar.h"

#include <QMenu>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace zephira {

namespace {

/// The entries of the context menu; the engine's standard menu offers much that is not allowed here.
constexpr QWebEnginePage::WebAction contextActions[] = {
    QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Reload,
    QWebEnginePage::Stop, QWebEnginePage::Copy,    QWebEnginePage::SelectAll,
};

} // namespace

BrowserWidget::BrowserWidget(const FileStore &files, QWidget *parent)
    : QWidget(parent)
    , m_messages(new ScriptMessageBar(this))
    , m_view(std::make_unique<QWebEngineView>(this))
    , m_input(new InputWatch(*m_view))
    , m_page(new BrowserPage(files, m_profile, m_view.get()))
{
    m_view->setPage(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_messages);
    layout->addWidget(m_view.get(), 1);
    m_page->setMessages(*m_messages);
    m_page->setInput(*m_input);
    setFocusProxy(m_view.get());
    keepFocusFromHidden(*this);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    // Queued, because the engine waits until the signal was handled.
    connect(m_view.get(), &QWidget::customContextMenuRequested, this, &BrowserWidget::showContextMenu,
            Qt::QueuedConnection);
    // The address is known as soon as the page begins to show; for a page that fails, only at the end of its loading.
    connect(m_page, &QWebEnginePage::urlChanged, this, &BrowserWidget::NavigateComplete);
    connect(m_page, &QWebEnginePage::loadFinished, this, &BrowserWidget::NavigateComplete);
    connect(m_page, &BrowserPage::letGo, m_messages, &ScriptMessageBar::listen);
}

BrowserWidget::~BrowserWidget()
{
    // A page that is being destroyed must not send any more signals.
    m_page->disconnect(this);
}

void BrowserWidget::navigate(const QString &address)
{
    // Dismiss all messages of the current page, because the user is leaving it.
    m_messages->silence();
    const QUrl target = pageAddress(address);
    if (m_homeKind == FileKind::Page && target == pageAddress(m_home))
        m_page->openAsPage(target);
    else
        m_page->open(target);
}

void BrowserWidget::setHome(const QString &address, FileKind kind)
{
    m_home = address;
    m_homeKind = kind;
}

void BrowserWidget::goBack()
{
    m_page->triggerAction(QWebEnginePage::Back);
}

void BrowserWidget::goForward()
{
    m_page->triggerAction(QWebEnginePage::Forward);
}

void BrowserWidget::goHome()
{
    navigate(m_home);
}

void BrowserWidget::refresh()
{
    m_messages->silence();
    // The engine would decide by the file's name whether it is a page.
    if (m_homeKind == FileKind::Page && m_page->url() == pageAddress(m_home))
        goHome();
    else
        m_page->reload();
}

void BrowserWidget::stop()
{
    m_page->triggerAction(QWebEnginePage::Stop);
}

QString BrowserWidget::locationUrl() const
{
    return m_page->url().toString();
}

void BrowserWidget::onNavigateComplete(std::function<void()> handler)
{
    connect(this, &BrowserWidget::NavigateComplete, this, handler);
}

void BrowserWidget::onProcessLost(std::function<void()> handler)
{
    connect(m_page, &BrowserPage::processLost, this, handler);
}

void BrowserWidget::setProjectFolder(const QString &folder)
{
    m_page->setProjectFolder(folder);
}

void BrowserWidget::setRemoteAllowed(bool allowed)
{
    m_page->setRemoteAllowed(allowed);
}

void BrowserWidget::onRemoteRefused(std::function<void(const QStringList &)> handler)
{
    connect(m_page, &BrowserPage::remoteRefused, this, handler);
}

void BrowserWidget::showContextMenu(const QPoint &place)
{
    QMenu menu(this);
    for (const QWebEnginePage::WebAction action : contextActions)
        menu.addAction(m_page->action(action));
    menu.exec(m_view->mapToGlobal(place));
}

} // namespace zephira

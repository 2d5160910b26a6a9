// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/viewswitch.h"

#include "commands/designerbar.h"
#include "commands/menus.h"
#include "core/errorstyles.h"
#include "core/prompts.h"
#include "document/document.h"
#include "files/appfolder.h"
#include "views/previewpane.h"

#include <QApplication>
#include <QEvent>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The events in which the user does something; mere movements are not among them.
constexpr QEvent::Type acts[] = {
    QEvent::KeyPress,
    QEvent::Shortcut,
    QEvent::InputMethod,
    QEvent::MouseButtonPress,
    QEvent::MouseButtonDblClick,
    QEvent::TabletPress,
    QEvent::TouchBegin,
    QEvent::ContextMenu,
    QEvent::Drop,
    QEvent::Close,
};

} // namespace

ViewSwitch::ViewSwitch(const AppContext &context, const Parts &parts, const WebViewsLoader &loadViews, QObject *owner)
    : QObject(owner)
    , m_context(context)
    , m_parts(parts)
    , m_loadViews(loadViews)
    , m_views(context, m_browser, *this)
    , m_preview(new PreviewPane(m_browser, &parts.pages))
{
    m_parts.pages.addWidget(m_preview);
    m_parts.designer.setLeaving([this] { m_views.finishLeaving(); });
    QTabBar &tabs = m_parts.tabs;
    connect(&tabs, &QTabBar::currentChanged, this, [this](int tab) { m_views.select(WorkspaceView(tab)); });
    connect(&tabs, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0 && tab == m_parts.tabs.currentIndex())
            m_views.select(WorkspaceView(tab));
    });
    // A click on a tab focuses its view, wherever the focus was. Queued, because the click is signalled before the view
    // changes.
    connect(&tabs, &QTabBar::tabBarClicked, this, &ViewSwitch::focusView, Qt::QueuedConnection);
    connect(m_preview, &PreviewPane::remoteAllowed, this, [this] { m_views.allowRemote(); });
    connect(m_preview, &PreviewPane::remoteForbidden, this, [this] { m_views.forbidRemote(); });
    connect(&m_parts.designerBar, &DesignerBar::resetClicked, this, [this] {
        m_views.reset();
        focusView();
    });
    tabs.setMouseTracking(true);
    tabs.installEventFilter(this);
}

void ViewSwitch::selectNext()
{
    m_parts.tabs.setCurrentIndex((m_parts.tabs.currentIndex() + 1) % m_parts.tabs.count());
}

void ViewSwitch::selectTab(WorkspaceView view)
{
    if (m_parts.tabs.currentIndex() == static_cast<int>(view))
        m_views.select(view);
    else
        m_parts.tabs.setCurrentIndex(static_cast<int>(view));
}

void ViewSwitch::focusView()
{
    m_parts.pages.currentWidget()->setFocus();
}

bool ViewSwitch::showInDesigner(qsizetype position)
{
    const bool isShown =
        m_views.current() == WorkspaceView::Visual && m_parts.designer.showPlace(position, DesignerPlace::Element);
    if (isShown)
        focusView();
    return isShown;
}

bool ViewSwitch::docModified() const
{
    return m_parts.document.docModified();
}

void ViewSwitch::markModified()
{
    m_parts.document.setModified(true);
}

bool ViewSwitch::doSave()
{
    return m_parts.document.doSave();
}

void ViewSwitch::setPreviewTarget(const QString &target)
{
    m_parts.document.setPreviewTarget(target);
}

QString ViewSwitch::scratchFolder() const
{
    return orRaise(zephira::scratchFolder());
}

int ViewSwitch::documentNumber() const
{
    return m_parts.document.number();
}

void ViewSwitch::notice(const QString &sentence)
{
    m_parts.window.notice(sentence);
}

Result<void> ViewSwitch::make(WorkspaceView view)
{
    const bool isThere = view == WorkspaceView::Preview ? m_browser.isAttached()
        : view == WorkspaceView::Visual                 ? m_parts.designer.isAttached()
                                                        : true;
    if (isThere)
        return {};
    const Result<WebViews *> views = m_loadViews();
    if (!views)
        return views.error();
    if (view == WorkspaceView::Preview) {
        const BrowserView browser = views.value()->makeBrowser(m_context.files, m_preview);
        m_preview->setBrowserWidget(browser.widget);
        m_browser.attach(*browser.control);
    } else {
        const DesignerView designer = views.value()->makeDesigner(m_context.files, m_context.prompts, &m_parts.pages);
        m_designerWidget = designer.widget;
        m_parts.pages.addWidget(m_designerWidget);
        m_parts.designer.attach(*designer.control);
    }
    return {};
}

bool ViewSwitch::prepare(WorkspaceView view)
{
    const Result<void> made = make(view);
    if (!made)
        tellError(m_context.prompts, made.error());
    return made.ok();
}

QWidget *ViewSwitch::page(WorkspaceView view) const
{
    switch (view) {
    case WorkspaceView::Preview:
        return m_preview;
    case WorkspaceView::Visual:
        return m_designerWidget;
    default:
        return m_parts.pages.widget(0);
    }
}

void ViewSwitch::showControls(WorkspaceView view)
{
    // The focus moves to the new view only if it was in the previous one; on the tabs it stays where it is.
    const QWidget *keyboard = m_parts.pages.window()->focusWidget();
    const bool hadFocus = m_parts.pages.isAncestorOf(keyboard) || m_parts.designerBar.isAncestorOf(keyboard);
    m_parts.designer.setShowing(view == WorkspaceView::Visual);
    m_parts.designerBar.setVisible(view == WorkspaceView::Visual);
    m_parts.pages.setCurrentWidget(page(view));
    if (hadFocus)
        focusView();
}

void ViewSwitch::showRemoteAllowed(bool allowed)
{
    m_preview->setRemoteAllowed(allowed);
}

void ViewSwitch::setSourceMenusEnabled(bool enabled)
{
    m_parts.menus.setMet(Need::SourceView, enabled);
    m_parts.menus.setMet(Need::QuickTags, enabled);
}

void ViewSwitch::setVisualMenusEnabled(bool enabled)
{
    m_parts.menus.setMet(Need::VisualView, enabled);
}

/// While waiting, what the user does first completes the change of view. This sees the events of all windows; what reaches
/// the program by another way, such as assistive technology, calls finishLeaving() itself.
void ViewSwitch::setWaiting(bool waiting)
{
    if (waiting == m_isWaiting)
        return;
    m_isWaiting = waiting;
    if (waiting)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

/// Whether the event is an act of the user that has to wait for the change of view. A click on the tabs needn't, because
/// it starts a change of its own; nor need events of the designer, which still belong to the view that is being left. The
/// engine sends the keys of which the page made nothing to the widgets around the designer; it answers nothing before
/// they have been handled, so the page can't be asked then.
bool ViewSwitch::comesAfterLeaving(const QObject *watched, const QEvent &event) const
{
    if (!m_isWaiting || std::ranges::find(acts, event.type()) == std::end(acts) || watched == &m_parts.tabs)
        return false;
    const auto *widget = qobject_cast<const QWidget *>(watched);
    const bool isSentBack = widget && !event.spontaneous() && widget->isAncestorOf(m_designerWidget);
    return !isSentBack && (!widget || (widget != m_designerWidget && !m_designerWidget->isAncestorOf(widget)));
}

/// The pointer reaches the tabs before it clicks, which leaves time to load the web engine. If loading fails, the click
/// reports it.
bool ViewSwitch::eventFilter(QObject *watched, QEvent *event)
{
    if (comesAfterLeaving(watched, *event))
        m_views.finishLeaving();
    if (watched == &m_parts.tabs && event->type() == QEvent::MouseMove && !m_isWarm) {
        m_isWarm = true;
        QTimer::singleShot(0, this, [this] {
            if (!m_browser.isAttached() && make(WorkspaceView::Preview))
                m_browser.navigate(u"about:blank"_s);
        });
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/toolpanel.h"

#include <QDockWidget>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int firstHeight = 200;

} // namespace

ToolPanel::ToolPanel(QMainWindow &window) : QObject(&window), m_window(window) {}

void ToolPanel::addPage(const QString &name, const QString &caption, std::function<QWidget *(QWidget *)> make)
{
    m_pages.push_back({name, caption, std::move(make), {}, false});
}

ToolPanel::Page *ToolPanel::find(const QString &name)
{
    const auto found = std::ranges::find(m_pages, name, &Page::name);
    return found == m_pages.end() ? nullptr : &*found;
}

const ToolPanel::Page *ToolPanel::find(const QString &name) const
{
    const auto found = std::ranges::find(m_pages, name, &Page::name);
    return found == m_pages.end() ? nullptr : &*found;
}

void ToolPanel::makeDock()
{
    m_dock = new QDockWidget(tr("Panel"), &m_window);
    m_dock->setObjectName(u"toolPanel"_s);
    m_dock->setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    m_dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    m_tabs = new QTabWidget(m_dock);
    m_tabs->setObjectName(u"toolPanelPages"_s);
    m_tabs->setAccessibleName(tr("Pages of the panel"));
    m_tabs->setDocumentMode(true);
    m_dock->setWidget(m_tabs);
    m_window.addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    m_window.resizeDocks({m_dock}, {firstHeight}, Qt::Vertical);
    m_tabs->installEventFilter(this);
    connect(m_tabs, &QTabWidget::currentChanged, this, &ToolPanel::tellShown);
    connect(m_dock, &QDockWidget::visibilityChanged, this, &ToolPanel::tellShown);
    if (made)
        made(*m_tabs);
}

QWidget *ToolPanel::show(const QString &name)
{
    Page *page = find(name);
    if (!page)
        return nullptr;
    if (!m_dock)
        makeDock();
    if (!page->widget) {
        page->widget = page->make(m_tabs);
        page->widget->setObjectName(page->name);
        m_tabs->addTab(page->widget, page->caption);
    }
    m_tabs->setCurrentWidget(page->widget);
    m_dock->show();
    tellShown();
    return page->widget;
}

QWidget *ToolPanel::enter(const QString &name)
{
    QWidget *page = show(name);
    if (page)
        page->setFocus(Qt::ShortcutFocusReason);
    return page;
}

bool ToolPanel::isShown(const QString &name) const
{
    const Page *page = find(name);
    return page && page->widget && m_dock->isVisibleTo(&m_window) && m_tabs->currentWidget() == page->widget;
}

void ToolPanel::setCaption(const QString &name, const QString &caption)
{
    Page *page = find(name);
    if (!page)
        return;
    page->caption = caption;
    if (page->widget)
        m_tabs->setTabText(m_tabs->indexOf(page->widget), caption);
}

void ToolPanel::close()
{
    if (m_dock)
        m_dock->close();
}

void ToolPanel::tellShown()
{
    for (Page &page : m_pages) {
        const bool shown = isShown(page.name);
        if (shown == page.wasShown)
            continue;
        page.wasShown = shown;
        Q_EMIT shownChanged(page.name, shown);
    }
}

/// A key that nothing in the panel takes comes up to its tabs.
bool ToolPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape && leave) {
        leave();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/errorstyles.h"

#include <QHash>
#include <QWidget>

#include <functional>

class QStackedWidget;

namespace zephira {

class Prompts;
class SideTabBar;

/// The left side of the main window: the tab strip `Frame1` and one page for each tab, of which the selected tab's page
/// is visible. A tab is identified by its key, which is its tabData.
class SidePane : public QWidget
{
    Q_OBJECT

public:
    /// When a page's contents are made after a click on its tab: before the page is shown, or once it is visible.
    enum class Fill { BeforeShowing, AfterShowing };

    explicit SidePane(Prompts &prompts, QWidget *parent = nullptr);

    /// The tab strip. Its tabs are added by the caller, before or after their pages.
    SideTabBar *tabs() const { return m_tabs; }

    /// Sets a tab's page; the pane takes ownership. A tab without one shows an empty page.
    void setPage(const QString &key, QWidget *page);
    /// The same for a page that is filled again at each click on its tab. If `fill` raises HandlerError, the user is told
    /// and decides whether the page is shown anyway.
    void setPage(const QString &key, QWidget *page, Fill when, Statement fill);

    /// If set, called before a page is shown; it may give tabs the pages that they don't have yet.
    std::function<void()> prepare;

    /// Selects a tab as a click does, even if it is already selected. Tabs count from 0.
    void click(int tab);

private:
    struct Page {
        QWidget *widget = nullptr;
        Fill when = Fill::AfterShowing;
        Statement fill = {};
    };

    void showPage(int tab);

    Prompts &m_prompts;
    SideTabBar *m_tabs;
    QStackedWidget *m_stack;
    /// Shows while all pages are hidden.
    QWidget *m_nothing;
    QHash<QString, Page> m_pages;
};

} // namespace zephira

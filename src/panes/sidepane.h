// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/errorstyles.h"

#include <QHash>
#include <QWidget>

class QStackedWidget;

namespace zephira {

class Prompts;
class SideTabBar;

/// The left side of the main window: the tab strip `Frame1` and one page a tab, of which the selected tab's shows. A tab
/// is known by its key, which is its tabData.
class SidePane : public QWidget
{
    Q_OBJECT

public:
    /// When a page's contents are made at a click on its tab: while nothing shows yet, or with the page in view.
    enum class Fill { BeforeShowing, AfterShowing };

    explicit SidePane(Prompts &prompts, QWidget *parent = nullptr);

    /// The strip. Its tabs are added from outside, before their pages or after.
    SideTabBar *tabs() const { return m_tabs; }

    /// Gives a tab its page, which from then on belongs to the pane. A tab without one shows an empty page.
    void setPage(const QString &key, QWidget *page);
    /// The same for a page that is filled anew at each click on its tab. Where `fill` raises HandlerError, the user is
    /// told, and decides whether the page still shows.
    void setPage(const QString &key, QWidget *page, Fill when, Statement fill);

    /// Selects a tab as a click does, also the one that is selected already. Tabs count from 0.
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sidepane.h"

#include "panes/sidetabbar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Margin around the pages, in pixels.
constexpr int margin = 4;

} // namespace

SidePane::SidePane(Prompts &prompts, QWidget *parent)
    : QWidget(parent)
    , m_prompts(prompts)
    , m_tabs(new SideTabBar(this))
    , m_stack(new QStackedWidget(this))
    , m_nothing(new QWidget(m_stack))
{
    setObjectName(u"sidePane"_s);
    m_tabs->setObjectName(u"Frame1"_s);
    m_tabs->setAccessibleName(u"Side panes"_s);
    m_stack->setObjectName(u"sidePages"_s);
    m_stack->setContentsMargins(margin, margin, margin, margin);
    m_stack->addWidget(m_nothing);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_tabs, 0, Qt::AlignTop);
    layout->addWidget(m_stack, 1);

    connect(m_tabs, &QTabBar::currentChanged, this, &SidePane::showPage);
    connect(m_tabs, &SideTabBar::clickedAgain, this, &SidePane::showPage);
}

void SidePane::setPage(const QString &key, QWidget *page)
{
    setPage(key, page, Fill::AfterShowing, [] {});
}

void SidePane::setPage(const QString &key, QWidget *page, Fill when, Statement fill)
{
    page->resize(0, 0); // A stack that shows already paints anew what a new page covers, although it is hidden.
    m_stack->addWidget(page);
    m_pages.insert(key, {page, when, std::move(fill)});
    if (m_tabs->tabData(m_tabs->currentIndex()).toString() == key)
        m_stack->setCurrentWidget(page);
}

void SidePane::click(int tab)
{
    if (tab == m_tabs->currentIndex())
        showPage(tab);
    else
        m_tabs->setCurrentIndex(tab);
}

void SidePane::showPage(int tab)
{
    if (prepare)
        prepare();
    const Page page = m_pages.value(m_tabs->tabData(tab).toString());
    if (!page.widget) {
        m_stack->setCurrentWidget(m_nothing);
        return;
    }
    QWidget *focused = QApplication::focusWidget();
    const QPointer<QWidget> keptFocus = page.widget->isAncestorOf(focused) ? focused : nullptr;
    const auto fillWhen = [&page](Fill now) {
        if (page.when == now)
            page.fill();
    };
    tellingErrors(m_prompts, u"frmmain"_s, u"Frame1_Click"_s,
                  {
                      [this] { m_stack->setCurrentWidget(m_nothing); },
                      [&] { fillWhen(Fill::BeforeShowing); },
                      [&] { m_stack->setCurrentWidget(page.widget); },
                      [&] { fillWhen(Fill::AfterShowing); },
                  });
    // While the page was briefly hidden, it lost the focus.
    if (keptFocus)
        keptFocus->setFocus();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tabstrip.h"

namespace zephira {

TabStrip::TabStrip(QWidget *parent) : QTabBar(parent) {}

void TabStrip::fill(const std::function<void()> &addTabs)
{
    m_isFilling = true;
    addTabs();
    m_isFilling = false;
    setElideMode(elideMode()); // Any such call makes the bar forget the sizes.
    updateGeometry();          // A hidden bar doesn't report its new size by itself.
}

QSize TabStrip::tabSizeHint(int index) const
{
    return m_isFilling ? QSize() : sizeOfTab(index);
}

QSize TabStrip::minimumTabSizeHint(int index) const
{
    return m_isFilling ? QSize() : leastSizeOfTab(index);
}

QSize TabStrip::sizeOfTab(int index) const
{
    return QTabBar::tabSizeHint(index);
}

QSize TabStrip::leastSizeOfTab(int index) const
{
    return QTabBar::minimumTabSizeHint(index);
}

} // namespace zephira

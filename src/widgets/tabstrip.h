// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTabBar>

#include <functional>

namespace zephira {

/// A tab bar that is filled in one go. An ordinary one measures all its tabs again for each one that is added, because
/// the new tab could be under the mouse.
class TabStrip : public QTabBar
{
    Q_OBJECT

public:
    explicit TabStrip(QWidget *parent = nullptr);

    /// Calls `addTabs`, which adds tabs, and then measures them all once.
    void fill(const std::function<void()> &addTabs);

protected:
    QSize tabSizeHint(int index) const final;
    QSize minimumTabSizeHint(int index) const final;
    /// The size of a tab, which by default is the style's.
    virtual QSize sizeOfTab(int index) const;
    virtual QSize leastSizeOfTab(int index) const;

private:
    bool m_isFilling = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/tabstrip.h"

#include <functional>
#include <utility>

namespace zephira {

/// A strip of upright picture tabs along the left edge. A tab's caption is not painted but read by assistive technology and
/// shown as its tip. Files can be dropped on the strip.
class SideTabBar : public TabStrip
{
    Q_OBJECT

public:
    explicit SideTabBar(QWidget *parent = nullptr);

    /// `titleOf` returns the title of a page for its tab's tip, by the tab's key; empty if the tip is up to date.
    void setTitles(std::function<QString(const QString &key)> titleOf) { m_titleOf = std::move(titleOf); }

Q_SIGNALS:
    /// The tab that is already selected was clicked; a click on another tab is a change of the tab.
    void clickedAgain(int index);
    /// The full path of the first of the dropped files.
    void fileDropped(const QString &path);

protected:
    bool event(QEvent *event) override;
    QSize sizeOfTab(int index) const override;
    QSize leastSizeOfTab(int index) const override { return sizeOfTab(index); }
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    std::function<QString(const QString &key)> m_titleOf;
};

} // namespace zephira

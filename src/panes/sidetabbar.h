// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTabBar>

namespace zephira {

/// A strip of upright picture tabs along the left edge. A tab's caption is not painted but read by assistive technology and
/// shown as its tip. A tab without a picture shows its key in capitals.
class SideTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit SideTabBar(QWidget *parent = nullptr);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent *event) override;
};

} // namespace zephira

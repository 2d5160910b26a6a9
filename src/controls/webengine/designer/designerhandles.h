// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>
#include <QWidget>

namespace zephira {

/// Draws the frame and the grips of the element that is selected as a whole, on top of the view that is its parent. It
/// takes no part in what the mouse does: the page decides what a grip is.
class DesignerHandles final : public QWidget
{
    Q_OBJECT

public:
    explicit DesignerHandles(QWidget *view);

    /// The element's x, y, width and height in pixels of the page, and its grips as a list of x and y from 0 to 1, each a
    /// share of width and height. `zoom` is the size of such a pixel in the view. An empty map hides all.
    void show(const QVariantMap &place, qreal zoom);

    QRectF frame() const { return m_frame; }
    QList<QRectF> grips() const { return m_grips; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF m_frame;
    QList<QRectF> m_grips;
};

} // namespace zephira

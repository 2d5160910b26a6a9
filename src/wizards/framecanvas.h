// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

namespace zephira {

/// A bar across the canvas of the frames wizard. Its position is in units of the canvas.
class FrameDivider final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double Left READ left)
    Q_PROPERTY(double Top READ top)

public:
    FrameDivider(Qt::Orientation direction, QWidget *canvas);

    double left() const { return m_direction == Qt::Vertical ? m_place : 0; }
    double top() const { return m_direction == Qt::Vertical ? 0 : m_place; }
    void setPlace(double place);
    /// Whether it follows the mouse, and is drawn so.
    void setArmed(bool armed);
    /// Moves to its position in a canvas of another size.
    void fit();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Qt::Orientation m_direction;
    double m_place = 50;
    bool m_armed = false;
};

/// The canvas of the frames wizard, 100 by 100 units, on which two bars divide the frames.
class FrameCanvas final : public QFrame
{
    Q_OBJECT

public:
    explicit FrameCanvas(QWidget *parent = nullptr);

    FrameDivider &vertical() const { return *m_vertical; }
    FrameDivider &horizontal() const { return *m_horizontal; }

    QSize sizeHint() const override { return {380, 260}; }

Q_SIGNALS:
    /// The mouse has moved, with or without a button held. The position is in units and may be outside the canvas.
    void mouseMoved(double x, double y);
    /// An arrow key was pressed.
    void stepped(int right, int down);
    /// A click, or the space bar.
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    FrameDivider *const m_vertical;
    FrameDivider *const m_horizontal;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wizards/mapcrosshair.h"
#include "wizards/mapdrawing.h"

#include <QPixmap>
#include <QWidget>

namespace zephira {

/// The picture of the image map creator, in its own size, and what is drawn above it. A position in it is the number of
/// a pixel of the picture, at any scale of the screen. The mouse draws, or the keyboard in its place.
class MapPicture final : public QWidget
{
    Q_OBJECT

public:
    explicit MapPicture(QWidget *parent = nullptr);

    /// The drawing that is shown; it must outlive the picture's next paint event.
    void setDrawing(const MapDrawing *drawing) { m_drawing = drawing; }
    void setPicture(const QPixmap &picture);
    /// In pixels; 0 by 0 without a picture.
    QSize pictureSize() const { return m_picture.size(); }
    /// Without a picture the widget is as large as its viewport and says what to do.
    void fit(QSize viewport);

Q_SIGNALS:
    void pressed(Qt::MouseButton button, QPoint place);
    void moved(Qt::MouseButtons held, QPoint place);
    void released(Qt::MouseButton button, QPoint place);
    /// The cross-hair was moved by keyboard.
    void stepped(QPoint place);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void pass(MapCrossHair::Event event);
    void setByKeyboard(bool byKeyboard);

    const MapDrawing *m_drawing = nullptr;
    QPixmap m_picture;
    MapCrossHair m_crossHair;
    /// Whether the cross-hair is shown.
    bool m_byKeyboard = false;
    bool m_isMouseDown = false;
};

/// The part of the window in which the picture is visible.
class MapView final : public QWidget
{
    Q_OBJECT

public:
    explicit MapView(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {640, 320}; }

Q_SIGNALS:
    void resized();
    /// The mouse wheel was turned; pixels that the picture is to move to the right and down.
    void wheeled(QPoint pixels);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace zephira

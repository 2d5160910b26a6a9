// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/charactermap.h"

#include <QWidget>

namespace zephira {

/// The cells of the character map. One of them is the current cell; the mouse and the keyboard move it.
class CharacterGrid final : public QWidget
{
    Q_OBJECT
    /// Index of the current cell, 1-based.
    Q_PROPERTY(int index READ index WRITE setIndex)

public:
    explicit CharacterGrid(QWidget *parent = nullptr);

    int index() const { return m_map.index(); }
    void setIndex(int index);
    /// Code of the current cell's character.
    int code() const { return m_map.code(); }

    /// Makes a cell the current one, as a click with the left button does.
    void click(MapCell cell);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Another cell has become the current one.
    void currentChanged(int code);
    /// The left button was pressed on a cell and released again.
    void pressed();
    void released();
    /// The current cell was chosen by a double click or by Return.
    void chosen();
    /// The character with that code is pointed at, or has become the current one through the keyboard. The point is in
    /// the grid.
    void lookedAt(int code, QPoint point);
    /// No character is pointed at any more.
    void lookedAway();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void press(MapCell cell);
    void release();
    bool moveByKey(const QKeyEvent &event);

    CharacterMap m_map;
    bool m_isPressed = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace zephira {

/// The cross that the user drags over the screen with the colour spy. It shows no picture while it is being dragged.
class SpyHandle final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool pictureShown READ isPictureShown WRITE setPictureShown)

public:
    explicit SpyHandle(QWidget *parent = nullptr);

    bool isPictureShown() const { return m_isShown; }
    void setPictureShown(bool shown);
    QSize sizeHint() const override { return {56, 56}; }

Q_SIGNALS:
    void pressed();
    void released();
    /// Space or Return was pressed.
    void activated();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_isShown = true;
};

} // namespace zephira

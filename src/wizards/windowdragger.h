// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

#include <optional>

class QWidget;

namespace zephira {

/// Makes a widget a handle for dragging its window, like the title bar. The window system moves the window; where it
/// doesn't support that, the dragger moves it with the mouse.
class WindowDragger final : public QObject
{
    Q_OBJECT

public:
    /// `handle` also owns the dragger.
    explicit WindowDragger(QWidget *handle);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void press(const QPoint &place);
    void move(const QPoint &place);

    QWidget *m_handle;
    /// The mouse position from the window's top left corner, in pixels; only set while the dragger moves the window
    /// itself.
    std::optional<QPoint> m_hold;
};

} // namespace zephira

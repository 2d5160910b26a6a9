// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

#include <optional>

class QWidget;

namespace zephira {

/// Makes a widget the handle by which its window is dragged, as if the title bar were held. The window system moves the
/// window; where it doesn't offer that, the window follows the mouse by itself.
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
    /// Where the window is held, from its top left corner, in pixels; only while the dragger moves the window itself.
    std::optional<QPoint> m_hold;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/zoomview.h"

#include <QDialog>

#include <memory>

class QTimer;

namespace zephira {

namespace Ui {
class frmZoom;
}

class ScreenColours;

/// A magnified view of the screen around the pointer, which keeps itself on top and out of the pointer's way. It is
/// drawn again when the pointer moves, and a few times a second.
class frmZoom final : public QDialog
{
    Q_OBJECT

public:
    /// The screen must outlive the form.
    frmZoom(const ScreenColours &screen, QWidget *owner);
    ~frmZoom() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// Starts the timer, or stops it while the window is minimised and shows nothing.
    void watch();
    void tick();
    void redraw(QPoint pointer);
    void dodge();

    const std::unique_ptr<Ui::frmZoom> m_ui;
    const ScreenColours &m_screen;
    ZoomTicks m_ticks;
    QTimer *const m_timer;
};

} // namespace zephira

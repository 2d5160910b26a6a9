// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/frmzoom.h"

#include "colour/screencolours.h"
#include "ui_frmzoom.h"

#include <QCursor>
#include <QScreen>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace zephira {

frmZoom::frmZoom(const ScreenColours &screen, QWidget *owner)
    : QDialog(owner, Qt::Tool | Qt::WindowStaysOnTopHint)
    , m_ui(std::make_unique<Ui::frmZoom>())
    , m_screen(screen)
    , m_timer(new QTimer(this))
{
    m_ui->setupUi(this);
    // The color spy's window keeps the keyboard focus.
    setAttribute(Qt::WA_ShowWithoutActivating);
    m_timer->setObjectName(u"tmrZoom"_s);
    m_timer->setInterval(ZoomTicks::interval);
    connect(m_timer, &QTimer::timeout, this, &frmZoom::tick);
}

frmZoom::~frmZoom() = default;

void frmZoom::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // What is shown may be old.
    m_ticks = {};
    watch();
}

void frmZoom::hideEvent(QHideEvent *event)
{
    m_timer->stop();
    QDialog::hideEvent(event);
}

void frmZoom::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (const auto pointer = m_screen.pointer(); pointer && isVisible())
        redraw(*pointer);
}

void frmZoom::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isVisible())
        watch();
}

void frmZoom::watch()
{
    if (isMinimized()) {
        m_timer->stop();
        return;
    }
    m_timer->start();
    tick();
}

void frmZoom::tick()
{
    const std::optional<QPoint> pointer = m_screen.pointer();
    if (!pointer) {
        // The screen can't be read, now or later.
        m_timer->stop();
        return;
    }
    const ZoomTicks::Due due = m_ticks.tick(*pointer, isMinimized());
    if (due.redraw) {
        dodge();
        redraw(*pointer);
    }
    if (due.raise)
        raise();
}

void frmZoom::redraw(QPoint pointer)
{
    const QSize size = m_ui->picZoom->pixelSize();
    const ZoomView view = zoomView(pointer, size);
    m_ui->picZoom->setPicture(zoomPicture(m_screen.picture(view.area), view, size));
}

void frmZoom::dodge()
{
    // Windows are placed in scaled pixels.
    const QPoint pointer = QCursor::pos();
    const QScreen *screen = QGuiApplication::screenAt(pointer);
    if (!screen)
        return;
    const QRect frame = frameGeometry();
    const QPoint place = placeAwayFrom(pointer, frame, screen->availableGeometry());
    if (place != frame.topLeft())
        move(place);
}

} // namespace zephira

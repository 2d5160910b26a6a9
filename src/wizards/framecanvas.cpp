// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/framecanvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr double units = 100;
constexpr int thickness = 5;

} // namespace

FrameDivider::FrameDivider(Qt::Orientation direction, QWidget *canvas) : QWidget(canvas), m_direction(direction)
{
    // The canvas also tracks the mouse over its bars.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    fit();
}

void FrameDivider::setPlace(double place)
{
    m_place = place;
    fit();
}

void FrameDivider::setArmed(bool armed)
{
    m_armed = armed;
    update();
}

void FrameDivider::fit()
{
    const QSize canvas = parentWidget()->size();
    if (m_direction == Qt::Vertical)
        setGeometry(qRound(m_place * canvas.width() / units) - thickness / 2, 0, thickness, canvas.height());
    else
        setGeometry(0, qRound(m_place * canvas.height() / units) - thickness / 2, canvas.width(), thickness);
}

void FrameDivider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(m_armed ? QPalette::Highlight : QPalette::Text));
}

FrameCanvas::FrameCanvas(QWidget *parent)
    : QFrame(parent)
    , m_vertical(new FrameDivider(Qt::Vertical, this))
    , m_horizontal(new FrameDivider(Qt::Horizontal, this))
{
    m_vertical->setObjectName(u"V"_s);
    m_vertical->setAccessibleName(u"Vertical bar"_s);
    m_horizontal->setObjectName(u"H"_s);
    m_horizontal->setAccessibleName(u"Horizontal bar"_s);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void FrameCanvas::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!hasFocus())
        return;
    // No style shows on a plain frame that the keys work there.
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

void FrameCanvas::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF place = event->position();
    Q_EMIT mouseMoved(place.x() * units / width(), place.y() * units / height());
}

void FrameCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void FrameCanvas::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        Q_EMIT stepped(-1, 0);
        break;
    case Qt::Key_Right:
        Q_EMIT stepped(1, 0);
        break;
    case Qt::Key_Up:
        Q_EMIT stepped(0, -1);
        break;
    case Qt::Key_Down:
        Q_EMIT stepped(0, 1);
        break;
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            Q_EMIT clicked();
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

void FrameCanvas::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_vertical->fit();
    m_horizontal->fit();
}

} // namespace zephira

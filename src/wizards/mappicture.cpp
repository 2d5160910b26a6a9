// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/mappicture.h"

#include "widgets/accessiblerole.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Pixels of the picture for a notch of the mouse wheel, which counts 120.
constexpr int wheelPixels = 48;
constexpr int wheelUnits = 120;
/// For an arrow key with Shift.
constexpr int wideStep = 10;

/// What is drawn is light with a dark middle, which can be seen on any picture; so these two colours are fixed.
const std::array<QPen, 2> &pens()
{
    static const std::array<QPen, 2> both{QPen(Qt::white, 3), QPen(Qt::black, 1)};
    return both;
}

/// The middle of a pixel.
QPointF middle(MapPoint place)
{
    constexpr double half = 0.5;
    return {static_cast<double>(place.x) + half, static_cast<double>(place.y) + half};
}

void paintLine(QPainter &painter, const MapLine &line)
{
    for (const QPen &pen : pens()) {
        painter.setPen(pen);
        painter.drawLine(middle(line.start), middle(line.end));
    }
}

void paintShape(QPainter &painter, const MapShape &shape)
{
    const QRectF place(middle({shape.left, shape.top}),
                       QSizeF(static_cast<double>(shape.width), static_cast<double>(shape.height)));
    for (const QPen &pen : pens()) {
        painter.setPen(pen);
        if (shape.kind == MapShape::Kind::Circle)
            painter.drawEllipse(place);
        else
            painter.drawRect(place);
    }
}

void paintDrawing(QPainter &painter, const MapDrawing &drawing)
{
    for (int area = 0; area < MapDrawing::areaCount; ++area) {
        if (drawing.shape(area).visible)
            paintShape(painter, drawing.shape(area));
    }
    for (int line = 0; line < MapDrawing::lineCount; ++line) {
        if (drawing.line(line).visible)
            paintLine(painter, drawing.line(line));
    }
}

/// Its middle stays free, so that the pixel under it can be seen.
void paintCrossHair(QPainter &painter, QPoint place)
{
    constexpr double from = 3;
    constexpr double to = 12;
    const QPointF centre = middle({static_cast<float>(place.x()), static_cast<float>(place.y())});
    for (const QPen &pen : pens()) {
        painter.setPen(pen);
        for (const QPointF direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            painter.drawLine(centre + direction * from, centre + direction * to);
    }
}

QPoint pixelAt(QPointF place)
{
    return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
}

/// The direction of an arrow key; null for other keys.
QPoint directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

MapPicture::MapPicture(QWidget *parent) : QWidget(parent)
{
    giveRole(*this, QAccessible::Canvas);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
}

void MapPicture::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    m_crossHair.setPicture(picture.size());
    resize(picture.size());
    update();
}

void MapPicture::fit(QSize viewport)
{
    if (!m_picture.isNull())
        return;
    m_crossHair.setPicture(viewport);
    resize(viewport);
}

void MapPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Open a picture from the menu File, or drop one here.\n\n"
                            "Draw with the mouse. Or move the cross-hair with the arrow keys,\n"
                            "and press and release with the space bar."));
    } else {
        painter.drawPixmap(0, 0, m_picture);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_drawing)
        paintDrawing(painter, *m_drawing);
    if (m_byKeyboard)
        paintCrossHair(painter, m_crossHair.place());
}

void MapPicture::mousePressEvent(QMouseEvent *event)
{
    m_crossHair.goTo(pixelAt(event->position()));
    m_isMouseDown = true;
    setByKeyboard(false);
    Q_EMIT pressed(event->button(), pixelAt(event->position()));
}

void MapPicture::mouseMoveEvent(QMouseEvent *event)
{
    Q_EMIT moved(event->buttons(), pixelAt(event->position()));
}

void MapPicture::mouseReleaseEvent(QMouseEvent *event)
{
    m_crossHair.goTo(pixelAt(event->position()));
    m_isMouseDown = event->buttons() != Qt::NoButton;
    Q_EMIT released(event->button(), pixelAt(event->position()));
}

void MapPicture::keyPressEvent(QKeyEvent *event)
{
    if (const QPoint direction = directionOf(event->key()); !direction.isNull()) {
        const QPoint step = direction * (event->modifiers().testFlag(Qt::ShiftModifier) ? wideStep : 1);
        setByKeyboard(true);
        pass(m_crossHair.step(step.x(), step.y()));
        Q_EMIT stepped(m_crossHair.place());
        update();
    } else if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat() && !m_isMouseDown)
            pass(m_crossHair.spacePressed());
    } else if (event->key() != Qt::Key_Escape || (!m_crossHair.isDown() && !m_isMouseDown)) {
        // In the middle of a drag the Escape key must not close the window.
        QWidget::keyPressEvent(event);
    }
}

void MapPicture::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space)
        QWidget::keyReleaseEvent(event);
    else if (!event->isAutoRepeat())
        pass(m_crossHair.spaceReleased());
}

void MapPicture::focusInEvent(QFocusEvent *event)
{
    setByKeyboard(event->reason() != Qt::MouseFocusReason);
    QWidget::focusInEvent(event);
}

void MapPicture::focusOutEvent(QFocusEvent *event)
{
    m_crossHair.reset();
    setByKeyboard(false);
    QWidget::focusOutEvent(event);
}

void MapPicture::pass(MapCrossHair::Event event)
{
    const QPoint place = m_crossHair.place();
    if (event == MapCrossHair::Event::Press)
        Q_EMIT pressed(Qt::LeftButton, place);
    else if (event == MapCrossHair::Event::Move)
        Q_EMIT moved(Qt::LeftButton, place);
    else if (event == MapCrossHair::Event::Release)
        Q_EMIT released(Qt::LeftButton, place);
}

void MapPicture::setByKeyboard(bool byKeyboard)
{
    m_byKeyboard = byKeyboard;
    update();
}

MapView::MapView(QWidget *parent) : QWidget(parent)
{
    setCursor(Qt::CrossCursor);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Mid);
}

void MapView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void MapView::wheelEvent(QWheelEvent *event)
{
    QPoint pixels = event->pixelDelta();
    if (pixels.isNull())
        pixels = event->angleDelta() * wheelPixels / wheelUnits;
    // The usual way to turn the wheel sideways.
    if (event->modifiers().testFlag(Qt::ShiftModifier) && pixels.x() == 0)
        pixels = pixels.transposed();
    Q_EMIT wheeled(pixels);
    event->accept();
}

} // namespace zephira

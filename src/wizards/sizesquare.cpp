// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/sizesquare.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace zephira {

namespace {

struct Step {
    int key;
    int rows;
    int columns;
};

constexpr Step steps[] = {
    {Qt::Key_Up, -1, 0},
    {Qt::Key_Down, 1, 0},
    {Qt::Key_Left, 0, -1},
    {Qt::Key_Right, 0, 1},
};

} // namespace

SizeSquare::SizeSquare(QWidget *parent) : QAbstractButton(parent)
{
    setAutoFillBackground(true);
    setHighlighted(false);
}

void SizeSquare::setHighlighted(bool highlighted)
{
    setBackgroundRole(highlighted ? QPalette::Highlight : QPalette::Base);
}

void SizeSquare::keyPressEvent(QKeyEvent *event)
{
    const auto step = std::ranges::find(steps, event->key(), &Step::key);
    if (step == std::end(steps))
        QAbstractButton::keyPressEvent(event);
    else
        Q_EMIT stepped(step->rows, step->columns);
}

void SizeSquare::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const auto drawFrame = [&](QPalette::ColorRole role, double inset, double opacity) {
        // Offset by half a pixel, so that the line is one pixel wide at every scale.
        const double margin = inset + 0.5;
        painter.setOpacity(opacity);
        painter.setPen(palette().color(role));
        painter.drawRect(QRectF(rect()).adjusted(margin, margin, -margin, -margin));
    };
    drawFrame(QPalette::WindowText, 0, 0.4);
    if (hasFocus())
        drawFrame(isHighlighted() ? QPalette::HighlightedText : QPalette::Text, 3, 1);
}

} // namespace zephira

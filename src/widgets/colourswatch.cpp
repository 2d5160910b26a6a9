// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/colourswatch.h"

#include <QLineEdit>
#include <QPainter>

namespace zephira {

namespace {

/// Lines are drawn half a unit inside, so that they stay sharp.
constexpr double half = 0.5;
/// Between the edge of the button and its colour there is room for the focus.
constexpr int rim = 3;

} // namespace

ColourSwatch::ColourSwatch(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourSwatch::follow(QLineEdit *field)
{
    connect(field, &QLineEdit::textChanged, this, &ColourSwatch::showColour);
    showColour(field->text());
}

QSize ColourSwatch::sizeHint() const
{
    const int height = QLineEdit().sizeHint().height();
    return {height * 3 / 2, height};
}

void ColourSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF frame = QRectF(rect()).adjusted(rim + half, rim + half, -rim - half, -rim - half);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(m_colour.isValid() ? QBrush(m_colour) : palette().brush(QPalette::Base));
    painter.drawRect(frame);
    if (!m_colour.isValid()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(frame.bottomLeft(), frame.topRight());
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
        painter.drawRect(QRectF(rect()).adjusted(1 + half, 1 + half, -1 - half, -1 - half));
    }
}

void ColourSwatch::showColour(const QString &name)
{
    // A name of a million characters is no colour either, and needn't be looked at.
    const QString trimmed = name.left(64).trimmed();
    m_colour = QColor::isValidColor(trimmed) ? QColor(trimmed) : QColor();
    update();
}

} // namespace zephira

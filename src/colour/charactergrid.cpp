// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/charactergrid.h"

#include "colour/characters.h"
#include "widgets/accessiblerole.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A grey for lines and for the current cell without the focus. It is told from the background, and the text from it, in
/// dark palettes as well, whose own greys are nearly the background.
QColor greyOf(const QPalette &colours)
{
    constexpr int shareOfText = 30;
    const QColor base = colours.color(QPalette::Base);
    const QColor text = colours.color(QPalette::Text);
    const auto blend = [](int from, int to) { return (from * (100 - shareOfText) + to * shareOfText) / 100; };
    return {blend(base.red(), text.red()), blend(base.green(), text.green()), blend(base.blue(), text.blue())};
}

} // namespace

CharacterGrid::CharacterGrid(QWidget *parent) : QWidget(parent)
{
    constexpr int points = 8;
    setFont(QFont(u"Arial"_s, points));
    giveRole(*this, QAccessible::Canvas);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void CharacterGrid::setIndex(int index)
{
    const int before = m_map.index();
    m_map.setIndex(index);
    if (m_map.index() == before)
        return;
    update();
    Q_EMIT currentChanged(code());
}

void CharacterGrid::click(MapCell cell)
{
    press(cell);
    release();
}

QSize CharacterGrid::sizeHint() const
{
    const int side = fontMetrics().height() + 6;
    return {CharacterMap::columns * side + 1, CharacterMap::rows * side + 1};
}

void CharacterGrid::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QSize cell = cellSize(size());
    const QRect grid({}, QSize(cell.width() * CharacterMap::columns, cell.height() * CharacterMap::rows));
    painter.fillRect(grid, palette().color(QPalette::Base));
    const QRect current = cellRect(m_map.cell(), size());
    const QColor grey = greyOf(palette());
    painter.fillRect(current, hasFocus() ? palette().color(QPalette::Highlight) : grey);
    painter.setPen(grey);
    for (int column = 0; column <= CharacterMap::columns; ++column)
        painter.drawLine(column * cell.width(), 0, column * cell.width(), grid.height());
    for (int row = 0; row <= CharacterMap::rows; ++row)
        painter.drawLine(0, row * cell.height(), grid.width(), row * cell.height());
    for (int row = 0; row < CharacterMap::rows; ++row) {
        for (int column = 0; column < CharacterMap::columns; ++column) {
            const MapCell place{row, column};
            const bool chosen = hasFocus() && place == m_map.cell();
            painter.setPen(palette().color(chosen ? QPalette::HighlightedText : QPalette::Text));
            painter.drawText(cellRect(place, size()), Qt::AlignCenter, characterOfCode(CharacterMap::codeOf(place)));
        }
    }
}

void CharacterGrid::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (const auto cell = cellAt(event->position().toPoint(), size()))
        press(*cell);
}

void CharacterGrid::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const auto cell = cellAt(point, size());
    if (!cell) {
        Q_EMIT lookedAway();
        return;
    }
    if (m_isPressed)
        setIndex(CharacterMap::indexOf(*cell));
    Q_EMIT lookedAt(CharacterMap::codeOf(*cell), point);
}

void CharacterGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        release();
}

void CharacterGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton && cellAt(event->position().toPoint(), size()))
        Q_EMIT chosen();
}

void CharacterGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT chosen();
    } else if (moveByKey(*event)) {
        Q_EMIT lookedAt(code(), cellRect(m_map.cell(), size()).center());
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CharacterGrid::leaveEvent(QEvent *event)
{
    Q_EMIT lookedAway();
    QWidget::leaveEvent(event);
}

void CharacterGrid::focusOutEvent(QFocusEvent *event)
{
    // The release of a button over another window isn't reported.
    release();
    Q_EMIT lookedAway();
    QWidget::focusOutEvent(event);
}

void CharacterGrid::press(MapCell cell)
{
    m_isPressed = true;
    Q_EMIT pressed();
    setIndex(CharacterMap::indexOf(cell));
}

void CharacterGrid::release()
{
    if (!std::exchange(m_isPressed, false))
        return;
    Q_EMIT released();
}

bool CharacterGrid::moveByKey(const QKeyEvent &event)
{
    const bool whole = event.modifiers() & Qt::ControlModifier;
    CharacterMap target = m_map;
    switch (event.key()) {
    case Qt::Key_Left:
        target.stepSideways(-1);
        break;
    case Qt::Key_Right:
        target.stepSideways(1);
        break;
    case Qt::Key_Up:
        target.stepDown(-1);
        break;
    case Qt::Key_Down:
        target.stepDown(1);
        break;
    case Qt::Key_Home:
        whole ? target.toStart() : target.toRowStart();
        break;
    case Qt::Key_End:
        whole ? target.toEnd() : target.toRowEnd();
        break;
    default:
        return false;
    }
    setIndex(target.index());
    return true;
}

} // namespace zephira

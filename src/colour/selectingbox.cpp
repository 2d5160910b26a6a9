// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/selectingbox.h"

#include <QFocusEvent>
#include <QTimer>

namespace zephira {

namespace {

/// The box's own background with a share of red, so that the text stays legible in any palette.
QColor markedColour(const QColor &base)
{
    constexpr int shareOfRed = 35;
    const auto blend = [](int from, int to) { return (from * (100 - shareOfRed) + to * shareOfRed) / 100; };
    return {blend(base.red(), 255), blend(base.green(), 0), blend(base.blue(), 0)};
}

} // namespace

void SelectingBox::setMarked(bool marked)
{
    if (marked == m_marked)
        return;
    m_marked = marked;
    if (marked) {
        QPalette colours = palette();
        colours.setColor(QPalette::Base, markedColour(colours.color(QPalette::Base)));
        setPalette(colours);
    } else {
        setPalette({});
    }
    setAccessibleDescription(marked ? tr("Not a value") : QString());
}

void SelectingBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    // The click that brings the focus then puts the caret under the pointer.
    if (event->reason() == Qt::MouseFocusReason)
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void SelectingBox::contextMenuEvent(QContextMenuEvent *event)
{
    if (!hasSelectedText())
        selectAll();
    QLineEdit::contextMenuEvent(event);
}

} // namespace zephira

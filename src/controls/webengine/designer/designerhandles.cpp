// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/webengine/designer/designerhandles.h"

#include <QEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qreal gripSize = 7;

} // namespace

DesignerHandles::DesignerHandles(QWidget *view) : QWidget(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(view->rect());
    view->installEventFilter(this);
    hide();
}

void DesignerHandles::show(const QVariantMap &place, qreal zoom)
{
    m_grips.clear();
    m_frame = {place.value(u"x"_s).toReal() * zoom, place.value(u"y"_s).toReal() * zoom,
               place.value(u"width"_s).toReal() * zoom, place.value(u"height"_s).toReal() * zoom};
    const QVariantList grips = place.value(u"grips"_s).toList();
    for (const QVariant &grip : grips) {
        const QVariantMap share = grip.toMap();
        const QPointF middle(m_frame.x() + m_frame.width() * share.value(u"x"_s).toReal(),
                             m_frame.y() + m_frame.height() * share.value(u"y"_s).toReal());
        m_grips.append({middle.x() - gripSize / 2, middle.y() - gripSize / 2, gripSize, gripSize});
    }
    setVisible(!place.isEmpty());
    raise();
    update();
}

bool DesignerHandles::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void DesignerHandles::paintEvent(QPaintEvent *)
{
    // The page's background is the author's choice, so that the frame has both a light and a dark line.
    QPainter painter(this);
    const QRectF line = QRectF(m_frame.toAlignedRect().adjusted(-1, -1, 0, 0)).translated(0.5, 0.5);
    painter.setPen(Qt::white);
    painter.drawRect(line);
    painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
    painter.drawRect(line);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    for (const QRectF &grip : m_grips)
        painter.drawRect(grip);
}

} // namespace zephira

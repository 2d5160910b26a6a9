// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerhandles.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr qreal gripSize = 7;
/// In pixels of the view.
constexpr int signTextSize = 9;

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
    m_signs.clear();
    const QVariantList signs = place.value(u"signs"_s).toList();
    for (const QVariant &entry : signs) {
        const QVariantMap sign = entry.toMap();
        m_signs.append({QPointF(sign.value(u"x"_s).toReal(), sign.value(u"y"_s).toReal()) * zoom,
                        sign.value(u"word"_s).toString()});
    }
    setVisible(!m_frame.isNull() || !m_signs.isEmpty());
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
    QPainter painter(this);
    if (!m_frame.isNull()) {
        paintFrame(painter);
        // Signs must not cover the selected element or its grips.
        const int around = static_cast<int>(std::ceil(gripSize / 2)) + 1;
        painter.setClipRegion(
            QRegion(rect()).subtracted(m_frame.toAlignedRect().adjusted(-around, -around, around, around)));
    }
    paintSigns(painter);
}

/// Drawn like the signs within the page itself. Signs at the same place are laid side by side.
void DesignerHandles::paintSigns(QPainter &painter) const
{
    QFont font = painter.font();
    font.setPixelSize(signTextSize);
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    QRectF last;
    for (const Sign &sign : m_signs) {
        QRectF box(sign.place, QSizeF(metrics.horizontalAdvance(sign.word) + 3, metrics.height()));
        if (last.intersects(box))
            box.moveLeft(last.right() + 1);
        painter.setPen(QColor(0xb0, 0x80, 0));
        painter.setBrush(QColor(0xff, 0xf4, 0xc8));
        painter.drawRect(box);
        painter.setPen(QColor(0x60, 0x48, 0));
        painter.drawText(box, Qt::AlignCenter, sign.word);
        last = box;
    }
}

void DesignerHandles::paintFrame(QPainter &painter) const
{
    // The page's background may have any colour, so the frame has both a light and a dark line.
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

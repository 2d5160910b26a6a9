// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/glyphs.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace zephira {

namespace {

constexpr qreal gridSize = 22;

/// A drawing surface of 22 by 22 units with the colours of the palette. Lines lie on half units, so that they fill whole
/// pixels at scale 1 and 2.
class Sketch
{
public:
    Sketch(QPainter &painter, QIcon::Mode mode) : m_painter(painter)
    {
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        m_ink = palette.color(group, QPalette::ButtonText);
        m_accent = mode == QIcon::Disabled ? m_ink : palette.color(group, QPalette::Highlight);
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setBrush(Qt::NoBrush);
        stroke(m_ink);
    }

    void box(qreal x, qreal y, qreal width, qreal height, qreal radius = 0)
    {
        m_painter.drawRoundedRect(QRectF(x + 0.5, y + 0.5, width - 1, height - 1), radius, radius);
    }
    void dashedBox(qreal x, qreal y, qreal width, qreal height)
    {
        stroke(m_ink, Qt::DashLine);
        box(x, y, width, height);
        stroke(m_ink);
    }
    void line(qreal x1, qreal y1, qreal x2, qreal y2) { m_painter.drawLine(QPointF(x1, y1), QPointF(x2, y2)); }
    void path(std::initializer_list<QPointF> points) { m_painter.drawPolyline(QPolygonF(QList<QPointF>(points))); }
    void circle(qreal x, qreal y, qreal radius) { m_painter.drawEllipse(QPointF(x, y), radius, radius); }
    void dot(qreal x, qreal y, qreal radius)
    {
        m_painter.save();
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_ink);
        m_painter.drawEllipse(QPointF(x, y), radius, radius);
        m_painter.restore();
    }
    void arc(qreal x, qreal y, qreal width, qreal height, int from, int span)
    {
        m_painter.drawArc(QRectF(x, y, width, height), from * 16, span * 16);
    }
    void fill(qreal x, qreal y, qreal width, qreal height)
    {
        m_painter.fillRect(QRectF(x, y, width, height), m_accent);
    }
    void fillPolygon(std::initializer_list<QPointF> points)
    {
        m_painter.save();
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_accent);
        m_painter.drawPolygon(QPolygonF(QList<QPointF>(points)));
        m_painter.restore();
    }
    /// A page with a folded corner and a number on it, from 1 to 6. The digits are drawn as lines: loading a font of
    /// that size just for them would cost the start more time than all other drawings.
    void numberedPage(int number)
    {
        path({{4.5, 2.5}, {13.5, 2.5}, {17.5, 6.5}, {17.5, 19.5}, {4.5, 19.5}, {4.5, 2}});
        path({{13.5, 2.5}, {13.5, 6.5}, {17.5, 6.5}});
        static const QList<QPolygonF> digits[] = {
            {{{9.5, 10.5}, {11.5, 9}, {11.5, 17}}},
            {{{8.5, 9.5}, {13.5, 9.5}, {13.5, 13}, {9, 13}, {9, 16.5}, {14, 16.5}}},
            {{{8.5, 9.5}, {13.5, 9.5}, {13.5, 16.5}, {8.5, 16.5}}, {{9.5, 13}, {13.5, 13}}},
            {{{9, 9}, {9, 13}, {14, 13}}, {{13, 9}, {13, 17}}},
            {{{13.5, 9.5}, {9, 9.5}, {9, 13}, {13.5, 13}, {13.5, 16.5}, {8.5, 16.5}}},
            {{{13.5, 9.5}, {9, 9.5}, {9, 16.5}, {13.5, 16.5}, {13.5, 13}, {9, 13}}},
        };
        m_painter.save();
        accentuate();
        for (const QPolygonF &lines : digits[number - 1])
            m_painter.drawPolyline(lines);
        m_painter.restore();
    }
    /// The following lines are in the accent colour and a little bolder.
    void accentuate() { stroke(m_accent, Qt::SolidLine, 1.5); }

private:
    void stroke(const QColor &colour, Qt::PenStyle style = Qt::SolidLine, qreal width = 1)
    {
        QPen pen(colour, width, style, Qt::FlatCap, Qt::MiterJoin);
        if (style == Qt::DashLine)
            pen.setDashPattern({2, 2});
        m_painter.setPen(pen);
    }

    QPainter &m_painter;
    QColor m_ink;
    QColor m_accent;
};

struct Shape {
    QStringView name;
    void (*draw)(Sketch &);
};

// clang-format off: a row a line
constexpr Shape shapes[] = {
    {u"alert",
     [](Sketch &s) {
         s.path({{11, 3.5}, {19, 18.5}, {3, 18.5}, {11, 3.5}, {12, 5.5}});
         s.accentuate();
         s.line(11, 8.5, 11, 13.5);
         s.line(11, 15, 11, 16.5);
     }},
    {u"anchor",
     [](Sketch &s) {
         s.circle(11, 5.5, 2);
         s.line(11, 7.5, 11, 18);
         s.line(7, 9.5, 15, 9.5);
         s.arc(4.5, 6, 13, 12.5, 190, 160);
     }},
    {u"button",
     [](Sketch &s) {
         s.box(2, 6, 18, 10, 2);
         s.fill(6, 10, 10, 2);
     }},
    {u"checkbox",
     [](Sketch &s) {
         s.box(4, 4, 14, 14);
         s.accentuate();
         s.path({{7, 11}, {10, 14}, {15, 7.5}});
     }},
    {u"combo",
     [](Sketch &s) {
         s.box(2, 6, 18, 10);
         s.line(13.5, 6, 13.5, 16);
         s.fillPolygon({{15, 10}, {19, 10}, {17, 12.5}});
         s.line(5, 11.5, 11, 11.5);
     }},
    {u"custom1", [](Sketch &s) { s.numberedPage(1); }},
    {u"custom2", [](Sketch &s) { s.numberedPage(2); }},
    {u"custom3", [](Sketch &s) { s.numberedPage(3); }},
    {u"custom4", [](Sketch &s) { s.numberedPage(4); }},
    {u"custom5", [](Sketch &s) { s.numberedPage(5); }},
    {u"custom6", [](Sketch &s) { s.numberedPage(6); }},
    {u"form",
     [](Sketch &s) {
         s.box(3, 3, 16, 16);
         s.box(6, 6, 10, 3);
         s.box(6, 11, 10, 3);
         s.fill(11, 16, 5, 1);
     }},
    {u"frame",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.fill(4, 5, 14, 3);
     }},
    {u"frameset",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.fill(4, 5, 4, 12);
         s.line(8.5, 4, 8.5, 18);
         s.line(8.5, 10.5, 19, 10.5);
     }},
    {u"grid",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.fill(4, 5, 14, 3);
         s.line(3, 8.5, 19, 8.5);
         s.line(3, 13.5, 19, 13.5);
         s.line(8.5, 4, 8.5, 18);
         s.line(13.5, 4, 13.5, 18);
     }},
    {u"hidden", [](Sketch &s) { s.dashedBox(2, 6, 18, 10); }},
    {u"iframe",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.fill(7, 8, 8, 6);
     }},
    {u"imagemap",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.fillPolygon({{6, 14}, {8, 8}, {13, 7}, {16, 11}, {12, 15}});
     }},
    {u"layer",
     [](Sketch &s) {
         s.fill(9, 9, 10, 10);
         s.box(3, 3, 11, 11);
     }},
    {u"listbox",
     [](Sketch &s) {
         s.box(3, 3, 16, 16);
         s.line(6, 6.5, 16, 6.5);
         s.fill(4, 9, 14, 4);
         s.line(6, 15.5, 16, 15.5);
     }},
    {u"noframe",
     [](Sketch &s) {
         s.box(3, 4, 16, 14);
         s.accentuate();
         s.line(6, 14.5, 16, 7.5);
         s.line(6, 7.5, 16, 14.5);
     }},
    {u"noscript",
     [](Sketch &s) {
         s.path({{7, 6}, {3, 11}, {7, 16}});
         s.path({{15, 6}, {19, 11}, {15, 16}});
         s.accentuate();
         s.line(7.5, 17.5, 14.5, 4.5);
         s.line(7.5, 4.5, 14.5, 17.5);
     }},
    {u"password",
     [](Sketch &s) {
         s.box(2, 6, 18, 10);
         s.dot(6.5, 11, 1.5);
         s.dot(11, 11, 1.5);
         s.dot(15.5, 11, 1.5);
     }},
    {u"radio",
     [](Sketch &s) {
         s.circle(11, 11, 7);
         s.dot(11, 11, 3);
     }},
    {u"return",
     [](Sketch &s) {
         s.path({{17.5, 5}, {17.5, 12.5}, {5, 12.5}});
         s.path({{8.5, 9}, {5, 12.5}, {8.5, 16}});
     }},
    {u"tags",
     [](Sketch &s) {
         s.path({{7, 6}, {3, 11}, {7, 16}});
         s.path({{15, 6}, {19, 11}, {15, 16}});
         s.accentuate();
         s.line(9, 17, 13, 5);
     }},
    {u"textarea",
     [](Sketch &s) {
         s.box(3, 3, 16, 16);
         s.line(6, 7.5, 16, 7.5);
         s.line(6, 10.5, 13, 10.5);
         s.fillPolygon({{18, 13}, {18, 18}, {13, 18}});
     }},
    {u"textfield",
     [](Sketch &s) {
         s.box(2, 6, 18, 10);
         s.accentuate();
         s.line(6, 8.5, 6, 13.5);
     }},
};
// clang-format on

/// Draws at the requested size, in the palette's current colours.
class ShapeEngine final : public QIconEngine
{
public:
    explicit ShapeEngine(const Shape &shape) : m_shape(shape) {}

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal side = std::min(rect.width(), rect.height());
        painter->save();
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(side / gridSize, side / gridSize);
        Sketch sketch(*painter, mode);
        m_shape.draw(sketch);
        painter->restore();
    }
    QIconEngine *clone() const override { return new ShapeEngine(m_shape); }

private:
    const Shape &m_shape;
};

} // namespace

QIcon shapeGlyph(QStringView name)
{
    const auto shape = std::ranges::find(shapes, name, &Shape::name);
    return shape == std::end(shapes) ? QIcon() : QIcon(new ShapeEngine(*shape));
}

QStringList shapeNames()
{
    QStringList names;
    for (const Shape &shape : shapes)
        names.append(shape.name.toString());
    return names;
}

} // namespace zephira

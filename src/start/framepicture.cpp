// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/framepicture.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace zephira {

namespace {

/// What a frame contains; each kind is drawn differently.
enum class Kind { Body, Bar, Links };

/// A frame, in percent of the page.
struct Frame {
    int left;
    int top;
    int width;
    int height;
    Kind kind;
};

struct FrameLayout {
    QStringView file;
    QStringView description;
    std::array<Frame, 5> frames; ///< unused places have no width
};

constexpr FrameLayout layouts[] = {
    {u"footer.html", u"Footer below the page", {{{0, 0, 100, 76, Kind::Body}, {0, 76, 100, 24, Kind::Bar}}}},
    {u"scframe.html", u"Side contents", {{{0, 0, 30, 100, Kind::Links}, {30, 0, 70, 100, Kind::Body}}}},
    {u"schframe.html",
     u"Side contents below a header",
     {{{0, 0, 100, 24, Kind::Bar}, {0, 24, 30, 76, Kind::Links}, {30, 24, 70, 76, Kind::Body}}}},
    {u"linkheaderframe.html",
     u"Header with links above the page",
     {{{0, 0, 100, 30, Kind::Links}, {0, 30, 100, 70, Kind::Body}}}},
    {u"schfframe.html",
     u"Side contents between header and footer",
     {{{0, 0, 100, 20, Kind::Bar},
       {0, 20, 30, 60, Kind::Links},
       {30, 20, 70, 60, Kind::Body},
       {0, 80, 100, 20, Kind::Bar}}}},
    {u"123topframe.html",
     u"Three frames side by side above the page",
     {{{0, 0, 33, 34, Kind::Bar},
       {33, 0, 34, 34, Kind::Bar},
       {67, 0, 33, 34, Kind::Bar},
       {0, 34, 100, 66, Kind::Body}}}},
    {u"slhcframe.html",
     u"Side links, with a header above the page",
     {{{0, 0, 30, 100, Kind::Links}, {30, 0, 70, 26, Kind::Bar}, {30, 26, 70, 74, Kind::Body}}}},
    {u"5050.html", u"Two halves side by side", {{{0, 0, 50, 100, Kind::Body}, {50, 0, 50, 100, Kind::Body}}}},
};

QRectF scaled(const Frame &frame, QSizeF page)
{
    return QRectF(frame.left * page.width() / 100, frame.top * page.height() / 100, frame.width * page.width() / 100,
                  frame.height * page.height() / 100);
}

/// Lines that represent text: a list of links has coloured ones.
void paintLines(QPainter &painter, QRectF area, Kind kind, const QPalette &palette)
{
    QColor ink = palette.color(kind == Kind::Links ? QPalette::Highlight : QPalette::Text);
    ink.setAlphaF(kind == Kind::Links ? 0.8F : 0.35F);
    painter.setPen(QPen(ink, 1.5));
    area.adjust(6, 8, -6, -4);
    const double widths[] = {1.0, 0.85, 0.95, 0.6};
    int line = 0;
    for (double y = area.top(); y <= area.bottom(); y += 7, ++line)
        painter.drawLine(QPointF(area.left(), y), QPointF(area.left() + area.width() * widths[line % 4], y));
}

void paintFrame(QPainter &painter, const QRectF &area, Kind kind, const QPalette &palette)
{
    QColor edge = palette.color(QPalette::Text);
    edge.setAlphaF(0.5F);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(palette.brush(kind == Kind::Bar ? QPalette::Highlight : QPalette::Base));
    painter.drawRect(area);
    if (kind != Kind::Bar)
        paintLines(painter, area, kind, palette);
}

} // namespace

FramePicture framePicture(const QString &templateFile, const QPalette &palette, QSize size)
{
    for (const FrameLayout &layout : layouts) {
        if (templateFile != layout.file)
            continue;
        // Drawn at twice the size, so that the picture stays sharp on a high-density screen.
        constexpr int density = 2;
        QPixmap pixmap(size * density);
        pixmap.setDevicePixelRatio(density);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0.5, 0.5);
        for (const Frame &frame : layout.frames) {
            if (frame.width > 0)
                paintFrame(painter, scaled(frame, QSizeF(size) - QSizeF(1, 1)), frame.kind, palette);
        }
        return {layout.description.toString(), QIcon(pixmap)};
    }
    return {};
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/linepages.h"

#include "editor/bidistretches.h"
#include "editor/stylefont.h"
#include "widgets/qtvalues.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zephira {

namespace {

using Sci = QsciScintillaBase;

/// These marks keep the text between them at its position in a left-to-right line.
constexpr QChar isolateStart(0x2066);
constexpr QChar isolateEnd(0x2069);
constexpr double pointsPerInch = 72;

bool showsNumbers(const SciEngine &engine)
{
    for (qsizetype margin = 0; margin < engine.send(Sci::SCI_GETMARGINS); ++margin) {
        if (engine.send(Sci::SCI_GETMARGINTYPEN, margin) == Sci::SC_MARGIN_NUMBER
            && engine.send(Sci::SCI_GETMARGINWIDTHN, margin) > 0)
            return true;
    }
    return false;
}

} // namespace

LinePages::LinePages(const SciEngine &engine, QPaintDevice &device, QPainter &painter, Frame frame, bool strikethrough)
    : m_engine(engine), m_device(device), m_painter(painter), m_frame(std::move(frame)), m_strikethrough(strikethrough)
{
    breakPages();
}

/// In device pixels, the only unit in which a layout's formats can hold it.
QFont LinePages::fontOf(int style) const
{
    QFont font = styleFont(m_engine, style, 0);
    const double pixels = font.pointSizeF() * m_device.logicalDpiY() / pointsPerInch;
    font.setPixelSize(std::max(static_cast<int>(std::lround(pixels)), 1));
    font.setStrikeOut(m_strikethrough && style != Sci::STYLE_LINENUMBER);
    return font;
}

const QTextCharFormat &LinePages::formatOf(int style)
{
    const auto [known, isNew] = m_formats.try_emplace(style);
    if (isNew) {
        known->second.setFont(fontOf(style));
        known->second.setForeground(toQColor(static_cast<quint32>(m_engine.send(Sci::SCI_STYLEGETFORE, style))));
    }
    return known->second;
}

const QTextLayout &LinePages::layoutOf(qsizetype line)
{
    if (line == m_line)
        return *m_layout;
    const qsizetype start = m_engine.lineStart(line);
    const QByteArrayView bytes = m_engine.bytes(start, m_engine.lineEnd(line));
    std::vector<unsigned char> styles(static_cast<std::size_t>(bytes.size()));
    for (std::size_t i = 0; i < styles.size(); ++i)
        styles[i] = static_cast<unsigned char>(m_engine.styleAt(start + static_cast<qsizetype>(i)));

    QString text;
    QList<QTextLayout::FormatRange> formats;
    const auto add = [&](qsizetype from, qsizetype to) {
        while (from < to) {
            const unsigned char style = styles[static_cast<std::size_t>(from)];
            qsizetype end = from;
            while (end < to && styles[static_cast<std::size_t>(end)] == style)
                ++end;
            const QString run = QString::fromUtf8(bytes.sliced(from, end - from));
            formats.append({static_cast<int>(text.size()), static_cast<int>(run.size()), formatOf(style)});
            text += run;
            from = end;
        }
    };
    qsizetype at = 0;
    for (const BidiStretch &stretch : bidiStretches(bytes, styles)) {
        add(at, stretch.start);
        text += isolateStart;
        add(stretch.start, stretch.end);
        text += isolateEnd;
        at = stretch.end;
    }
    add(at, bytes.size());

    m_line = line;
    const QFont font = fontOf(Sci::STYLE_DEFAULT);
    m_layout = std::make_unique<QTextLayout>(text, font);
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(static_cast<double>(m_engine.send(Sci::SCI_GETTABWIDTH))
                              * QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')));
    m_layout->setTextOption(option);
    m_layout->setFormats(formats);
    m_layout->beginLayout();
    for (QTextLine row = m_layout->createLine(); row.isValid(); row = m_layout->createLine())
        row.setLineWidth(m_width);
    m_layout->endLayout();
    return *m_layout;
}

void LinePages::visitRows(Row from, const Visitor &visit)
{
    for (Row at = from; at.line < m_engine.lineCount(); at = {at.line + 1, 0}) {
        const QTextLayout &layout = layoutOf(at.line);
        for (; at.row < layout.lineCount(); ++at.row) {
            if (!visit(at, layout.lineAt(at.row)))
                return;
        }
    }
}

void LinePages::breakPages()
{
    QRect area(0, 0, m_device.width(), m_device.height());
    m_frame(m_painter, false, area, 1);
    if (showsNumbers(m_engine)) {
        const QFontMetricsF metrics(fontOf(Sci::STYLE_LINENUMBER));
        m_numberWidth = metrics.horizontalAdvance(QString::number(m_engine.lineCount()) + QLatin1Char(' '));
    }
    m_width = area.width() - m_numberWidth;
    m_starts = {Row{}};
    double used = 0;
    visitRows({}, [&](Row at, const QTextLine &row) {
        if (used > 0 && used + row.height() > area.height()) {
            m_starts.push_back(at);
            used = 0;
        }
        used += row.height();
        return true;
    });
}

void LinePages::paintNumber(qsizetype line, QPointF rowStart, double ascent)
{
    const QFont font = fontOf(Sci::STYLE_LINENUMBER);
    const QFontMetricsF metrics(font);
    const QString number = QString::number(line + 1);
    const double x = rowStart.x() - metrics.horizontalAdvance(QLatin1Char(' ')) - metrics.horizontalAdvance(number);
    m_painter.setFont(font);
    m_painter.setPen(formatOf(Sci::STYLE_LINENUMBER).foreground().color());
    m_painter.drawText(QPointF(x, rowStart.y() + ascent), number);
}

void LinePages::paint(int page)
{
    QRect area(0, 0, m_device.width(), m_device.height());
    m_frame(m_painter, true, area, page);
    const auto next = static_cast<std::size_t>(page);
    const Row end = next < m_starts.size() ? m_starts[next] : Row{m_engine.lineCount(), 0};
    QPointF place(area.left() + m_numberWidth, area.top());
    visitRows(m_starts[next - 1], [&](Row at, const QTextLine &row) {
        if (at == end)
            return false;
        if (at.row == 0 && m_numberWidth > 0)
            paintNumber(at.line, place, row.ascent());
        // A row's position includes the rows above it in the same line.
        row.draw(&m_painter, place - row.position());
        place.ry() += row.height();
        return true;
    });
}

} // namespace zephira

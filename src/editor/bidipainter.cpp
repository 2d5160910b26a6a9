// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/bidipainter.h"

#include "editor/editorappearance.h"
#include "editor/indicators.h"
#include "editor/stylefont.h"
#include "files/buffertext.h"
#include "widgets/qtvalues.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

using Sci = QsciScintillaBase;

/// The padding that the engine adds beside a cell's content, in pixels.
constexpr double cellPadding = 3;
/// Space characters used to fill cells, from wide to narrow.
constexpr char enSpace[] = "\xe2\x80\x82";
constexpr char hairSpace[] = "\xe2\x80\x8a";
constexpr char noSpace[] = "\xe2\x80\x8b";
/// Of lines longer than this, in bytes, only the requested part is searched. It is extended to left-to-right text,
/// where stretches end, or by this number of bytes if there is none.
constexpr qsizetype longestWhole = 16 * 1024;
constexpr qsizetype widestMargin = 8 * 1024;
/// Half the length of a wave below a problem, and its height.
constexpr qreal waveStep = 2;
constexpr int markedIndicators[] = {BoundsIndicator, MatchIndicator, BraceIndicator};

QColor styleColour(const SciEngine &engine, unsigned int message, int style)
{
    return toQColor(static_cast<quint32>(engine.send(message, style)));
}

} // namespace

void BidiPainter::learn(QByteArrayView utf8)
{
    const std::size_t before = m_known.size();
    forEachRightToLeft(utf8, [&](char32_t code, QByteArrayView bytes) {
        if (m_known.insert(code).second)
            setCell(code, bytes.toByteArray());
    });
    if (m_known.size() != before)
        forgetLayouts();
}

void BidiPainter::fontChanged()
{
    for (const char32_t code : m_known)
        setCell(code, QString::fromUcs4(&code, 1).toUtf8());
    if (isNeeded())
        forgetLayouts();
}

/// Makes the engine discard the layout of lines with other cells.
void BidiPainter::forgetLayouts() const
{
    m_engine.send(Sci::SCI_SETCONTROLCHARSYMBOL, m_engine.send(Sci::SCI_GETCONTROLCHARSYMBOL));
}

/// Fills a letter's cell with spaces that are about as wide as the letter in running text.
void BidiPainter::setCell(char32_t code, const QByteArray &utf8) const
{
    const auto widthOf = [this](const char *blank) {
        constexpr int sample = 16;
        const auto width = m_engine.sendText(Sci::SCI_TEXTWIDTH, Sci::STYLE_CONTROLCHAR,
                                             QByteArray(blank).repeated(sample).constData());
        return std::max(static_cast<double>(width) / sample, 0.5);
    };
    const bool joins =
        QChar::joiningType(code) == QChar::Joining_Dual || QChar::joiningType(code) == QChar::Joining_Right;
    const QString letter = QString::fromUcs4(&code, 1);
    const QString among = joins ? QChar(0x200d) + letter + QChar(0x200d) : letter;
    double rest = QFontMetricsF(fontOf(Sci::STYLE_DEFAULT)).horizontalAdvance(among) - cellPadding;
    QByteArray cell;
    for (const char *blank : {enSpace, hairSpace}) {
        const double width = widthOf(blank);
        const int count = std::max(static_cast<int>(blank == hairSpace ? std::round(rest / width) : rest / width), 0);
        cell += QByteArray(blank).repeated(count);
        rest -= count * width;
    }
    if (cell.isEmpty())
        cell = noSpace;
    m_engine.sendText(Sci::SCI_SETREPRESENTATION, reinterpret_cast<qsizetype>(utf8.constData()), cell.constData());
}

QFont BidiPainter::fontOf(int style) const
{
    return styleFont(m_engine, style, m_engine.send(Sci::SCI_GETZOOM));
}

QPointF BidiPainter::pointOf(qsizetype position) const
{
    return {static_cast<double>(m_engine.send(Sci::SCI_POINTXFROMPOSITION, 0, position)),
            static_cast<double>(m_engine.send(Sci::SCI_POINTYFROMPOSITION, 0, position))};
}

/// The pieces of a line that lie, at least partly, between two positions.
std::vector<BidiPainter::Piece> BidiPainter::piecesOf(qsizetype line, qsizetype from, qsizetype to) const
{
    std::vector<Piece> pieces;
    const auto [start, end] = widened(line, from, to);
    const QByteArrayView text = m_engine.bytes(start, end);
    bool any = false;
    forEachRightToLeft(text, [&](char32_t, QByteArrayView) { any = true; });
    if (!any)
        return pieces;
    std::vector<unsigned char> styles(static_cast<std::size_t>(text.size()));
    for (std::size_t i = 0; i < styles.size(); ++i)
        styles[i] = static_cast<unsigned char>(m_engine.styleAt(start + static_cast<qsizetype>(i)));
    for (BidiStretch stretch : bidiStretches(text, styles)) {
        stretch.start += start;
        stretch.end += start;
        if (stretch.start <= to && stretch.end >= from)
            addPieces(pieces, stretch);
    }
    return pieces;
}

std::vector<BidiPainter::Piece> BidiPainter::piecesAt(qsizetype position) const
{
    return piecesOf(m_engine.lineOf(position), position, position);
}

/// The pieces of a line that can be seen.
std::vector<BidiPainter::Piece> BidiPainter::visiblePieces(qsizetype line) const
{
    const qsizetype start = m_engine.lineStart(line);
    const qsizetype end = m_engine.lineEnd(line);
    if (end - start <= longestWhole)
        return piecesOf(line, start, end);
    const QRectF area = textArea();
    const auto positionAt = [this](double x, double y) {
        return m_engine.send(Sci::SCI_POSITIONFROMPOINT, std::lround(x), std::lround(y));
    };
    const double top = std::max(pointOf(start).y(), area.top());
    const double bottom = std::min(pointOf(end).y(), area.bottom());
    return piecesOf(line, positionAt(area.left(), top), positionAt(area.right(), bottom));
}

/// The part of a line that must be searched to find the stretches between two of its positions.
std::pair<qsizetype, qsizetype> BidiPainter::widened(qsizetype line, qsizetype from, qsizetype to) const
{
    const qsizetype start = m_engine.lineStart(line);
    const qsizetype end = m_engine.lineEnd(line);
    if (end - start <= longestWhole)
        return {start, end};
    const qsizetype first = std::max(from - widestMargin, start);
    const QByteArrayView before = m_engine.bytes(first, from);
    qsizetype low = before.size();
    while (low > 0 && !endsStretch(before[low - 1]))
        --low;
    // Without such a place the stretches are cut by their lengths, from one of the document's own positions.
    const qsizetype cut =
        first + low > start && low == 0 ? (from - widestMargin) / widestMargin * widestMargin : first + low;
    const QByteArrayView behind = m_engine.bytes(to, std::min(to + widestMargin, end));
    qsizetype high = 0;
    while (high < behind.size() && !endsStretch(behind[high]))
        ++high;
    const auto wholeCharacter = [this](qsizetype position) {
        return m_engine.send(Sci::SCI_POSITIONBEFORE, m_engine.send(Sci::SCI_POSITIONAFTER, position));
    };
    return {wholeCharacter(std::max(cut, start)), to + high >= end ? end : wholeCharacter(to + high)};
}

/// Cuts a stretch where its line is wrapped.
void BidiPainter::addPieces(std::vector<Piece> &pieces, const BidiStretch &stretch) const
{
    BidiStretch part = stretch;
    double y = pointOf(part.start).y();
    if (m_engine.send(Sci::SCI_GETWRAPMODE) != Sci::SC_WRAP_NONE) {
        for (qsizetype at = part.start; at < stretch.end; at = m_engine.send(Sci::SCI_POSITIONAFTER, at)) {
            const double rowY = pointOf(at).y();
            if (rowY == y)
                continue;
            part.end = at;
            pieces.push_back(makePiece(part, y));
            part = {at, stretch.end, stretch.style};
            y = rowY;
        }
    }
    pieces.push_back(makePiece(part, y));
}

BidiPainter::Piece BidiPainter::makePiece(const BidiStretch &part, double y) const
{
    const double height = static_cast<double>(m_engine.send(Sci::SCI_TEXTHEIGHT, 0));
    const double left = pointOf(part.start).x();
    QPointF end = pointOf(part.end);
    if (end.y() != y) {
        // The next character is in the next row. The last one is assumed to be as wide as the one before it.
        const qsizetype last = m_engine.send(Sci::SCI_POSITIONBEFORE, part.end);
        const double before = pointOf(m_engine.send(Sci::SCI_POSITIONBEFORE, last)).x();
        end = {2 * pointOf(last).x() - before, y};
    }
    const QString text = fromBuffer(m_engine.bytes(part.start, part.end), LineEnds::Mixed);
    Piece piece{part.start, part.end, QRectF(left, y, std::max(end.x() - left, 1.0), height), nullptr};
    piece.layout = std::make_shared<QTextLayout>(text, fontOf(part.style));
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    piece.layout->setTextOption(option);
    QTextLayout::FormatRange colour;
    colour.start = 0;
    colour.length = static_cast<int>(text.size());
    colour.format.setForeground(styleColour(m_engine, Sci::SCI_STYLEGETFORE, part.style));
    piece.layout->setFormats({colour});
    piece.layout->beginLayout();
    QTextLine line = piece.layout->createLine();
    piece.layout->endLayout();
    piece.scale = line.naturalTextWidth() > 0 ? piece.cells.width() / line.naturalTextWidth() : 1;
    return piece;
}

/// The x coordinate of the caret before the character at an index of the piece's text.
double BidiPainter::Piece::xOf(qsizetype index) const
{
    return cells.left() + layout->lineAt(0).cursorToX(static_cast<int>(index)) * scale;
}

/// The rectangle of the characters from one index up to another, which must be visually adjacent.
QRectF BidiPainter::Piece::rectOf(qsizetype from, qsizetype to) const
{
    const double a = xOf(from);
    const double b = xOf(to);
    return {std::min(a, b), cells.top(), std::abs(b - a), cells.height()};
}

qsizetype BidiPainter::indexOf(const Piece &piece, qsizetype position) const
{
    return utf16Length(m_engine.bytes(piece.start, std::clamp(position, piece.start, piece.end)));
}

qsizetype BidiPainter::positionOf(const Piece &piece, qsizetype index) const
{
    return piece.start + byteOffset(m_engine.bytes(piece.start, piece.end), index);
}

QRectF BidiPainter::textArea() const
{
    qsizetype margins = 0;
    for (qsizetype margin = 0; margin < m_engine.send(Sci::SCI_GETMARGINS); ++margin)
        margins += m_engine.send(Sci::SCI_GETMARGINWIDTHN, margin);
    return QRectF(m_engine.view().viewport()->rect()).adjusted(static_cast<double>(margins), 0, 0, 0);
}

void BidiPainter::paint(QPainter &painter, const QRect &dirty) const
{
    if (m_known.empty())
        return;
    painter.setClipRect(textArea().intersected(dirty));
    const qsizetype first = m_engine.send(Sci::SCI_GETFIRSTVISIBLELINE);
    const qsizetype last =
        m_engine.send(Sci::SCI_DOCLINEFROMVISIBLE, first + m_engine.send(Sci::SCI_LINESONSCREEN) + 1);
    for (qsizetype line = m_engine.send(Sci::SCI_DOCLINEFROMVISIBLE, first); line <= last; ++line) {
        if (!m_engine.send(Sci::SCI_GETLINEVISIBLE, line))
            continue;
        for (const Piece &piece : visiblePieces(line)) {
            if (piece.cells.intersects(dirty))
                paintPiece(painter, piece);
        }
    }
}

void BidiPainter::paintPiece(QPainter &painter, const Piece &piece) const
{
    // One pixel wider, because the last cell may end at a fractional position.
    painter.fillRect(piece.cells.adjusted(0, 0, 1, 0), backgroundOf(piece));
    paintEdge(painter, piece);
    paintSelections(painter, piece);
    painter.save();
    painter.translate(piece.cells.left(), piece.cells.top());
    painter.scale(piece.scale, 1);
    const double ascent = piece.layout->lineAt(0).ascent();
    const double baseline = static_cast<double>(m_engine.send(Sci::SCI_GETEXTRAASCENT))
        + QFontMetricsF(fontOf(Sci::STYLE_DEFAULT)).ascent();
    piece.layout->draw(&painter, QPointF(0, baseline - ascent));
    painter.restore();
    if (m_engine.send(Sci::SCI_GETVIEWWS) != Sci::SCWS_INVISIBLE)
        paintBlanks(painter, piece);
    paintIndicators(painter, piece);
    paintCarets(painter, piece);
}

/// The colours of the caret's line and the highlighted line take precedence over the style's background.
QColor BidiPainter::backgroundOf(const Piece &piece) const
{
    const qsizetype line = m_engine.lineOf(piece.start);
    if (m_engine.send(Sci::SCI_GETCARETLINEVISIBLE) && m_engine.lineOf(m_engine.caret()) == line)
        return toQColor(static_cast<quint32>(m_engine.send(Sci::SCI_GETCARETLINEBACK)));
    if (m_engine.send(Sci::SCI_MARKERGET, line) >> highlightMarker & 1)
        return m_appearance.background(HighlightedLineColour);
    return styleColour(m_engine, Sci::SCI_STYLEGETBACK, m_engine.styleAt(piece.start));
}

/// The edge line is drawn behind the text.
void BidiPainter::paintEdge(QPainter &painter, const Piece &piece) const
{
    if (m_engine.send(Sci::SCI_GETEDGEMODE) != Sci::EDGE_LINE)
        return;
    const double start = pointOf(m_engine.lineStart(m_engine.lineOf(piece.start))).x();
    const double blank = QFontMetricsF(fontOf(Sci::STYLE_DEFAULT)).horizontalAdvance(u' ');
    const double x = start + std::floor(static_cast<double>(m_engine.send(Sci::SCI_GETEDGECOLUMN)) * blank);
    const QRectF edge(x, piece.cells.top(), 1, piece.cells.height());
    painter.fillRect(edge.intersected(piece.cells), styleColour(m_engine, Sci::SCI_GETEDGECOLOUR, 0));
}

void BidiPainter::paintSelections(QPainter &painter, const Piece &piece) const
{
    const qsizetype main = m_engine.send(Sci::SCI_GETMAINSELECTION);
    for (qsizetype i = 0; i < m_engine.send(Sci::SCI_GETSELECTIONS); ++i) {
        const qsizetype from = std::max(m_engine.send(Sci::SCI_GETSELECTIONNSTART, i), piece.start);
        const qsizetype to = std::min(m_engine.send(Sci::SCI_GETSELECTIONNEND, i), piece.end);
        const qsizetype end = indexOf(piece, to);
        for (qsizetype at = indexOf(piece, from); from < to && at < end; ++at)
            painter.fillRect(piece.rectOf(at, at + 1), m_appearance.selectionColour(i == main));
    }
}

void BidiPainter::paintIndicators(QPainter &painter, const Piece &piece) const
{
    const auto isMarked = [&](int indicator, qsizetype index) {
        return m_engine.send(Sci::SCI_INDICATORVALUEAT, indicator, positionOf(piece, index)) != 0;
    };
    const qsizetype length = piece.layout->text().size();
    const auto forEachRange = [&](int indicator, const auto &draw) {
        for (qsizetype from = 0; from < length;) {
            qsizetype to = from + 1;
            if (isMarked(indicator, from)) {
                QRectF box = piece.rectOf(from, to);
                for (; to < length && isMarked(indicator, to); ++to)
                    box |= piece.rectOf(to, to + 1);
                painter.setPen(toQColor(static_cast<quint32>(m_engine.send(Sci::SCI_INDICGETFORE, indicator))));
                draw(box);
            }
            from = to;
        }
    };
    for (const int indicator : markedIndicators)
        forEachRange(indicator, [&](const QRectF &box) { painter.drawRect(box.adjusted(0, 1, -1, -2)); });
    for (const int indicator : {ErrorIndicator, WarningIndicator}) {
        forEachRange(indicator, [&](const QRectF &box) {
            QPolygonF wave;
            for (int i = 0; box.left() + waveStep * i <= box.right(); ++i)
                wave.append({box.left() + waveStep * i, box.bottom() - (i % 2 == 0 ? 1 : 1 + waveStep)});
            painter.drawPolyline(wave);
        });
    }
    forEachRange(StrikeIndicator, [&](const QRectF &box) {
        painter.drawLine(QPointF(box.left(), box.center().y()), QPointF(box.right(), box.center().y()));
    });
}

void BidiPainter::paintBlanks(QPainter &painter, const Piece &piece) const
{
    const double size = static_cast<double>(m_engine.send(Sci::SCI_GETWHITESPACESIZE));
    const QString text = piece.layout->text();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u' ')
            continue;
        QRectF dot(0, 0, size, size);
        dot.moveCenter(piece.rectOf(i, i + 1).center());
        painter.fillRect(dot, m_appearance.whitespaceColour());
    }
}

/// At an end of the stretch a caret has two positions: one next to the left-to-right text, where the engine draws it,
/// and one next to the right-to-left letter. The second one is drawn at half height.
void BidiPainter::paintCarets(QPainter &painter, const Piece &piece) const
{
    if (m_dropPosition >= 0)
        paintCaret(painter, piece, m_dropPosition);
    if (!m_engine.view().hasFocus())
        return;
    for (qsizetype i = 0; i < m_engine.send(Sci::SCI_GETSELECTIONS); ++i)
        paintCaret(painter, piece, m_engine.send(Sci::SCI_GETSELECTIONNCARET, i));
}

void BidiPainter::paintCaret(QPainter &painter, const Piece &piece, qsizetype position) const
{
    if (position < piece.start || position > piece.end)
        return;
    const double width = static_cast<double>(m_engine.send(Sci::SCI_GETCARETWIDTH));
    const QColor colour = toQColor(static_cast<quint32>(m_engine.send(Sci::SCI_GETCARETFORE)));
    const qsizetype index = indexOf(piece, position);
    const bool atEnd = index == 0 || index == piece.layout->text().size();
    const double x = std::min(piece.xOf(index), piece.cells.right() - width);
    const double height = piece.cells.height();
    painter.fillRect(QRectF(x, piece.cells.top() + (atEnd ? height / 2 : 0), width, atEnd ? height / 2 : height),
                     colour);
    if (index == 0)
        painter.fillRect(QRectF(piece.cells.left(), piece.cells.top(), width, height), colour);
}

void BidiPainter::setDropPosition(qsizetype position)
{
    if (std::exchange(m_dropPosition, position) != position && isNeeded())
        m_engine.view().viewport()->update();
}

QPointF BidiPainter::toEngine(const QPointF &point) const
{
    if (m_known.empty() || !textArea().contains(point))
        return point;
    const qsizetype position =
        m_engine.send(Sci::SCI_POSITIONFROMPOINT, std::lround(point.x()), std::lround(point.y()));
    for (const Piece &piece : piecesAt(position)) {
        if (!piece.cells.contains(point))
            continue;
        const qsizetype length = piece.layout->text().size();
        for (qsizetype i = 0; i < length; ++i) {
            const double leading = piece.xOf(i);
            const double trailing = piece.xOf(i + 1);
            if (point.x() < std::min(leading, trailing) || point.x() >= std::max(leading, trailing))
                continue;
            const double share = (point.x() - leading) / (trailing - leading);
            const qsizetype from = positionOf(piece, i);
            const qsizetype to = std::max(positionOf(piece, i + 1), m_engine.send(Sci::SCI_POSITIONAFTER, from));
            const double cellStart = pointOf(from).x();
            const double cellEnd = to >= piece.end ? piece.cells.right() : pointOf(to).x();
            return {cellStart + share * (cellEnd - cellStart), point.y()};
        }
    }
    return point;
}

QRectF BidiPainter::characterRect(qsizetype position) const
{
    if (m_known.empty())
        return {};
    for (const Piece &piece : piecesAt(position)) {
        if (position >= piece.start && position < piece.end) {
            const qsizetype index = indexOf(piece, position);
            return piece.rectOf(index, index + 1);
        }
    }
    return {};
}

} // namespace zephira

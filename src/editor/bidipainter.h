// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/bidistretches.h"
#include "editor/sciengine.h"

#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

class QPainter;

namespace zephira {

class EditorAppearance;

/// Paints right-to-left text. The editor engine lays characters out only from left to right and takes runs of
/// right-to-left letters to have no width. So each such letter is given a cell of its own in the engine, about as wide
/// as the letter, which gives the line its correct width; each stretch of these letters is then painted in the right
/// order over its cells.
class BidiPainter
{
public:
    BidiPainter(SciEngine engine, const EditorAppearance &appearance) : m_engine(engine), m_appearance(appearance) {}

    /// To be called with every text added to the document, before it is painted.
    void learn(QByteArrayView utf8);
    /// To be called when the font has changed: computes the widths of the cells again.
    void fontChanged();

    /// Whether the document has, or had, such text.
    bool isNeeded() const { return !m_known.empty(); }

    /// Shows a caret where something dragged over the text would be dropped; -1 for none.
    void setDropPosition(qsizetype position);

    /// Paints the stretches of the visible lines, after the engine has painted the text.
    void paint(QPainter &painter, const QRect &dirty) const;
    /// The point at which the engine has the character painted at `point` (widget coordinates); `point` itself outside
    /// of stretches.
    QPointF toEngine(const QPointF &point) const;
    /// The rectangle, in widget coordinates, of the character at a byte position; empty outside of stretches.
    QRectF characterRect(qsizetype position) const;

private:
    /// A stretch, or the part of it in one row of a wrapped line.
    struct Piece {
        qsizetype start = 0;
        qsizetype end = 0;
        QRectF cells; ///< in widget coordinates
        std::shared_ptr<QTextLayout> layout;
        double scale = 1; ///< horizontal factor that makes the layout fill the cells

        QRectF rectOf(qsizetype from, qsizetype to) const;
        double xOf(qsizetype index) const;
    };

    void setCell(char32_t code, const QByteArray &utf8) const;
    void forgetLayouts() const;
    QFont fontOf(int style) const;
    std::pair<qsizetype, qsizetype> widened(qsizetype line, qsizetype from, qsizetype to) const;
    std::vector<Piece> piecesOf(qsizetype line, qsizetype from, qsizetype to) const;
    std::vector<Piece> piecesAt(qsizetype position) const;
    std::vector<Piece> visiblePieces(qsizetype line) const;
    void addPieces(std::vector<Piece> &pieces, const BidiStretch &stretch) const;
    Piece makePiece(const BidiStretch &part, double y) const;
    QPointF pointOf(qsizetype position) const;
    qsizetype indexOf(const Piece &piece, qsizetype position) const;
    qsizetype positionOf(const Piece &piece, qsizetype index) const;
    QRectF textArea() const;
    void paintPiece(QPainter &painter, const Piece &piece) const;
    void paintEdge(QPainter &painter, const Piece &piece) const;
    void paintSelections(QPainter &painter, const Piece &piece) const;
    void paintIndicators(QPainter &painter, const Piece &piece) const;
    void paintBlanks(QPainter &painter, const Piece &piece) const;
    void paintCarets(QPainter &painter, const Piece &piece) const;
    void paintCaret(QPainter &painter, const Piece &piece, qsizetype position) const;
    QColor backgroundOf(const Piece &piece) const;

    SciEngine m_engine;
    const EditorAppearance &m_appearance;
    std::set<char32_t> m_known;
    qsizetype m_dropPosition = -1;
};

} // namespace zephira

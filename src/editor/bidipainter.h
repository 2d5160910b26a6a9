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
#include <vector>

class QPainter;

namespace zephira {

class EditorAppearance;

/// Text that is read from right to left. The editor engine lays characters out from left to right only, and takes runs of
/// such letters for empty. So each such letter gets a cell of its own there, about as wide as the letter, which gives the
/// line its right width; and each stretch of them is painted anew, in the right order, over the cells that it fills.
class BidiPainter
{
public:
    BidiPainter(SciEngine engine, const EditorAppearance &appearance) : m_engine(engine), m_appearance(appearance) {}

    /// To be called with every text that comes into the document, before it is painted.
    void learn(QByteArrayView utf8);
    /// The font is another one: the cells get new widths.
    void fontChanged();

    /// Takes the cells away for something that paints without this, or gives them back.
    void setCells(bool on) const;

    /// Paints the stretches of the visible lines. The engine has painted its part.
    void paint(QPainter &painter, const QRect &dirty) const;
    /// Where the engine has the spot that stands under a point of the window; the point itself outside of stretches.
    QPointF toEngine(const QPointF &point) const;
    /// The rectangle in the window of the character at a byte position; empty outside of stretches.
    QRectF characterRect(qsizetype position) const;

private:
    /// A stretch, or the part of one that lies in one row of a wrapped line.
    struct Piece {
        qsizetype start = 0;
        qsizetype end = 0;
        QRectF cells; ///< in the window
        std::shared_ptr<QTextLayout> layout;
        double scale = 1; ///< of the layout's width, to fill the cells

        QRectF rectOf(qsizetype from, qsizetype to) const;
        double xOf(qsizetype index) const;
    };

    void setCell(char32_t code, const QByteArray &utf8) const;
    QFont fontOf(int style) const;
    std::vector<Piece> piecesOf(qsizetype line) const;
    void addPieces(std::vector<Piece> &pieces, const BidiStretch &stretch) const;
    Piece makePiece(const BidiStretch &part, double y) const;
    QPointF pointOf(qsizetype position) const;
    qsizetype indexOf(const Piece &piece, qsizetype position) const;
    qsizetype positionOf(const Piece &piece, qsizetype index) const;
    QRectF textArea() const;
    void paintPiece(QPainter &painter, const Piece &piece) const;
    void paintSelections(QPainter &painter, const Piece &piece) const;
    void paintIndicators(QPainter &painter, const Piece &piece) const;
    void paintBlanks(QPainter &painter, const Piece &piece) const;
    void paintCarets(QPainter &painter, const Piece &piece) const;
    QColor backgroundOf(const Piece &piece) const;

    SciEngine m_engine;
    const EditorAppearance &m_appearance;
    std::set<char32_t> m_known;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/sizepicker.h"

#include "wizards/sizesquare.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int squareTwips = 400;
constexpr int pitchTwips = 480;

/// One twip is a fifteenth of a pixel at 96 dots per inch.
int pixelsFromTwips(int twips, const QWidget &widget)
{
    return qRound(twips * widget.logicalDpiX() / (15.0 * 96.0));
}

/// 0-based index of the square at a row and a column, which count from 1.
std::size_t squareIndex(int row, int column)
{
    return static_cast<std::size_t>((row - 1) * SizePicker::sideLength + column - 1);
}

} // namespace

SizePicker::SizePicker(QWidget *parent) : QFrame(parent)
{
    const int pixels = pixelsFromTwips(squareTwips, *this);
    auto *grid = new QGridLayout(this);
    grid->setSpacing(pixelsFromTwips(pitchTwips, *this) - pixels);
    for (int row = 1; row <= sideLength; ++row) {
        for (int column = 1; column <= sideLength; ++column) {
            SizeSquare *square = addSquare(row, column, pixels);
            grid->addWidget(square, row - 1, column - 1);
            m_squares[squareIndex(row, column)] = square;
        }
    }
}

void SizePicker::clear()
{
    for (SizeSquare *square : m_squares)
        square->setHighlighted(false);
}

void SizePicker::highlight(int rows, int columns)
{
    for (int row = 1; row <= rows; ++row) {
        for (int column = 1; column <= columns; ++column)
            m_squares[squareIndex(row, column)]->setHighlighted(true);
    }
    for (SizeSquare *square : m_squares)
        square->setFocusPolicy(Qt::ClickFocus);
    SizeSquare *corner = m_squares[squareIndex(rows, columns)];
    corner->setFocusPolicy(Qt::StrongFocus);
    corner->setFocus();
}

SizeSquare *SizePicker::addSquare(int row, int column, int pixels)
{
    auto *square = new SizeSquare(this);
    square->setObjectName(u"pic%1"_s.arg(squareIndex(row, column) + 1));
    square->setFixedSize(pixels, pixels);
    square->setCursor(Qt::ArrowCursor);
    square->setAccessibleName(tr("%1 rows, %2 columns").arg(row).arg(column));
    square->setToolTip(square->accessibleName());
    connect(square, &SizeSquare::clicked, this, [this, row, column] { Q_EMIT picked(row, column); });
    connect(square, &SizeSquare::stepped, this, [this, row, column](int rows, int columns) {
        Q_EMIT picked(qBound(1, row + rows, sideLength), qBound(1, column + columns, sideLength));
    });
    return square;
}

} // namespace zephira

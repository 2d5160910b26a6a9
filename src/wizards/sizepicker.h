// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <array>

namespace zephira {

class SizeSquare;

/// A grid of squares, pic1 to pic25 row by row, for picking a size in rows and columns, both counted from 1. The grid
/// is one stop in the tab order, at the square that was highlighted last; from there the arrow keys pick a size too.
class SizePicker final : public QFrame
{
    Q_OBJECT

public:
    static constexpr int sideLength = 5;

    explicit SizePicker(QWidget *parent = nullptr);

    /// Paints all squares in the background colour.
    void clear();
    /// Paints the squares within that size in the highlight colour; leaves the others.
    void highlight(int rows, int columns);

Q_SIGNALS:
    void picked(int rows, int columns);

private:
    SizeSquare *addSquare(int row, int column, int pixels);

    /// Row by row from the top left.
    std::array<SizeSquare *, sideLength * sideLength> m_squares{};
};

} // namespace zephira

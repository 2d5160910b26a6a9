// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace zephira {

/// One square of a grid for picking a size: a button filled with the highlight colour or the window's background
/// colour, which passes arrow keys on to the grid.
class SizeSquare final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit SizeSquare(QWidget *parent = nullptr);

    bool isHighlighted() const { return backgroundRole() == QPalette::Highlight; }
    void setHighlighted(bool highlighted);

Q_SIGNALS:
    /// An arrow key was pressed; each step is -1, 0 or 1.
    void stepped(int rows, int columns);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace zephira {

/// A filled shape that shows a colour.
class ColourShape final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor FillColor READ fillColour WRITE setFillColour)

public:
    explicit ColourShape(QWidget *parent = nullptr) : QWidget(parent) {}

    QColor fillColour() const { return m_colour; }
    void setFillColour(const QColor &colour);
    QSize sizeHint() const override { return {96, 56}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_colour;
};

} // namespace zephira

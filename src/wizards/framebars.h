// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The two bars that divide the frames. A chosen bar follows the mouse, without a button held, until a click drops it;
/// the next click picks it up again. Positions are in units of the canvas, which is 100 by 100; a bar may lie outside
/// it.
class FrameBars
{
public:
    enum class Bar { None, Vertical, Horizontal };

    /// Chooses a bar, which follows the mouse from now on.
    void arm(Bar bar);
    /// To be called when the mouse has moved to a position in the canvas. Returns whether a bar has moved.
    bool moveTo(double x, double y);
    /// Moves the bar that follows the mouse by that number of units. Returns whether there is one.
    bool moveBy(double right, double down);
    /// A click: drops the chosen bar, or picks it up.
    void click();

    Bar chosen() const { return m_chosen; }
    bool TrackV() const { return m_trackV; }
    bool TrackH() const { return m_trackH; }
    double left() const { return m_left; }
    double top() const { return m_top; }

    /// The labels beside the two choices. They name the default until a bar has moved.
    QString verticalLabel() const { return m_verticalLabel; }
    QString horizontalLabel() const { return m_horizontalLabel; }

    /// The percentage that is written: the share of the side after the bar, plus 1.
    qint16 colPercent() const;
    qint16 rowPercent() const;

private:
    bool follows(Bar bar) const;
    void placeVertical(double left);
    void placeHorizontal(double top);

    Bar m_chosen = Bar::None;
    bool m_trackV = false;
    bool m_trackH = false;
    double m_left = 50;
    double m_top = 50;
    QString m_verticalLabel = QStringLiteral("50 %");
    QString m_horizontalLabel = QStringLiteral("50 %");
};

} // namespace zephira

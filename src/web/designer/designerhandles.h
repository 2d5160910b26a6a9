// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantMap>
#include <QWidget>

namespace zephira {

/// Draws the frame and the grips of the element that is selected as a whole, and the signs of elements that aren't
/// visible, on top of its parent, the view. It ignores the mouse: the page decides what a grip is.
class DesignerHandles final : public QWidget
{
    Q_OBJECT

public:
    explicit DesignerHandles(QWidget *view);

    /// A word and its upper left corner in the view.
    struct Sign {
        QPointF place;
        QString word;
    };

    /// The element's x, y, width and height in CSS pixels of the page, and its grips as a list of x and y from 0 to 1,
    /// as fractions of width and height; without a width there is no element. The signs are a list of x, y and word.
    /// `zoom` is the size of a CSS pixel in the view. A map with neither an element nor signs hides everything.
    void show(const QVariantMap &place, qreal zoom);

    QRectF frame() const { return m_frame; }
    QList<QRectF> grips() const { return m_grips; }
    const QList<Sign> &signs() const { return m_signs; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintFrame(QPainter &painter) const;
    void paintSigns(QPainter &painter) const;

    QRectF m_frame;
    QList<QRectF> m_grips;
    QList<Sign> m_signs;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "colour/zoomview.h"

#include <QImage>
#include <QWidget>

namespace zephira {

/// A magnified view as a picture of that size in native pixels: the screen's pixels, a grid and a frame.
QImage zoomPicture(const QImage &screen, const ZoomView &view, QSize size);

/// Shows a picture pixel by pixel, at any scale factor.
class ZoomPicture final : public QWidget
{
    Q_OBJECT

public:
    explicit ZoomPicture(QWidget *parent = nullptr) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

    /// Inner size in native pixels.
    QSize pixelSize() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }
    const QImage &picture() const { return m_picture; }
    void setPicture(const QImage &picture);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QFrame>

#include <array>

namespace zephira {

/// One of the four frames in the preview: red while its fields are shown, otherwise white.
class FramePane final : public QAbstractButton
{
    Q_OBJECT
    /// With red in the lowest byte.
    Q_PROPERTY(quint32 BackColor READ backColor)

public:
    explicit FramePane(QWidget *parent);

    bool isRed() const { return m_red; }
    void setRed(bool red);
    quint32 backColor() const { return m_red ? 0x0000ffU : 0xffffffU; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_red = false;
};

/// The frames as they are divided, 100 by 100 units. Their numbers are those of their groups of fields, from 1.
class FramePreview final : public QFrame
{
    Q_OBJECT

public:
    explicit FramePreview(QWidget *parent = nullptr);

    /// Divides the panes at these positions. Every pane stays large enough to be clicked.
    void divide(int left, int top);
    /// Makes this pane red and all others white.
    void choose(int group);
    bool isChosen(int group) const;

    QSize sizeHint() const override { return {380, 180}; }

Q_SIGNALS:
    void paneClicked(int group);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    /// In the order of the groups.
    std::array<FramePane *, 4> m_panes = {};
    int m_left = 50;
    int m_top = 50;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/framepreview.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int units = 100;
constexpr int smallest = 8;

struct PaneRow {
    QStringView name;
    QStringView place;
    int group;
};

// From left to right and from top to bottom, as the tab key goes.
constexpr PaneRow paneRows[] = {
    {u"P2", u"Top left frame", 1},
    {u"P5", u"Top right frame", 3},
    {u"P3", u"Bottom left frame", 2},
    {u"P4", u"Bottom right frame", 4},
};

std::size_t paneIndex(int group)
{
    return static_cast<std::size_t>(group - 1);
}

} // namespace

FramePane::FramePane(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void FramePane::setRed(bool red)
{
    m_red = red;
    // Users who can't see the colour get the same information.
    setAccessibleDescription(red ? u"Chosen"_s : QString());
    update();
}

void FramePane::paintEvent(QPaintEvent *)
{
    // The panes are white and red in every palette, so their lines are black.
    QPainter painter(this);
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::black);
    painter.setBrush(m_red ? Qt::red : Qt::white);
    painter.drawRect(edge);
    painter.setBrush(Qt::NoBrush);
    if (m_red) {
        painter.setPen(QPen(Qt::black, 3));
        painter.drawRect(edge.adjusted(2, 2, -2, -2));
        QFont font = painter.font();
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(rect(), Qt::AlignCenter, u"\u2713"_s);
    }
    if (hasFocus()) {
        painter.setPen(QPen(Qt::black, 1, Qt::DotLine));
        painter.drawRect(edge.adjusted(5, 5, -5, -5));
    }
}

FramePreview::FramePreview(QWidget *parent) : QFrame(parent)
{
    // The fields below must not take its room.
    setMinimumHeight(140);
    for (const PaneRow &row : paneRows) {
        auto *pane = new FramePane(this);
        pane->setObjectName(row.name.toString());
        pane->setAccessibleName(row.place.toString());
        pane->setToolTip(row.place.toString());
        connect(pane, &FramePane::clicked, this, [this, group = row.group] { Q_EMIT paneClicked(group); });
        m_panes[paneIndex(row.group)] = pane;
    }
}

void FramePreview::divide(int left, int top)
{
    m_left = std::clamp(left, smallest, units - smallest);
    m_top = std::clamp(top, smallest, units - smallest);
    layOut();
}

void FramePreview::choose(int group)
{
    for (FramePane *pane : m_panes)
        pane->setRed(pane == m_panes[paneIndex(group)]);
}

bool FramePreview::isChosen(int group) const
{
    return m_panes[paneIndex(group)]->isRed();
}

void FramePreview::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    layOut();
}

void FramePreview::layOut()
{
    const int x = width() * m_left / units;
    const int y = height() * m_top / units;
    m_panes[paneIndex(1)]->setGeometry(0, 0, x, y);
    m_panes[paneIndex(3)]->setGeometry(x, 0, width() - x, y);
    m_panes[paneIndex(2)]->setGeometry(0, y, x, height() - y);
    m_panes[paneIndex(4)]->setGeometry(x, y, width() - x, height() - y);
}

} // namespace zephira

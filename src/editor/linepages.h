// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/sciengine.h"

#include <QFont>
#include <QRect>
#include <QTextCharFormat>
#include <QTextLayout>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QPaintDevice;
class QPainter;

namespace zephira {

/// The pages of a text with right-to-left letters, because the engine prints only from left to right. Lines are wrapped
/// at words, and have line numbers if the window shows them.
class LinePages
{
public:
    /// Draws what surrounds the text of a page into the area and removes its space from the area, or only removes the
    /// space.
    using Frame = std::function<void(QPainter &, bool drawing, QRect &area, int page)>;

    /// The text must be styled, and must not change while its pages exist. The painter paints on the device, which
    /// determines the size of a page.
    LinePages(const SciEngine &engine, QPaintDevice &device, QPainter &painter, Frame frame,
              bool strikethrough = false);

    int count() const { return static_cast<int>(m_starts.size()); }
    /// Page numbers are 1-based.
    void paint(int page);

private:
    /// A row of a wrapped line.
    struct Row {
        qsizetype line = 0;
        int row = 0;

        friend bool operator==(const Row &, const Row &) = default;
    };
    using Visitor = std::function<bool(Row at, const QTextLine &row)>;

    void breakPages();
    void paintNumber(qsizetype line, QPointF rowStart, double ascent);
    void visitRows(Row from, const Visitor &visit);
    const QTextLayout &layoutOf(qsizetype line);
    QFont fontOf(int style) const;
    const QTextCharFormat &formatOf(int style);

    SciEngine m_engine;
    QPaintDevice &m_device;
    QPainter &m_painter;
    Frame m_frame;
    bool m_strikethrough;
    std::map<int, QTextCharFormat> m_formats;
    /// The line laid out last, kept because a long one fills several pages.
    qsizetype m_line = -1;
    std::unique_ptr<QTextLayout> m_layout;
    /// The first row of each page.
    std::vector<Row> m_starts;
    double m_numberWidth = 0;
    double m_width = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/emphasisdelegate.h"

#include "search/searchresults.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace zephira {

void EmphasisDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QVariant emphasis = index.data(SearchResults::EmphasisRole);
    if (!emphasis.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    // The style draws the row without its text, which is then laid out with the bold part.
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    const QString text = row.text;
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);
    row.text = text;
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &row, row.widget) + 1;
    const QRect area =
        style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget).adjusted(margin, 0, -margin, 0);

    QTextLayout layout(text, row.font);
    QTextOption wholeLine(Qt::AlignLeft);
    wholeLine.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(wholeLine);
    QTextLayout::FormatRange range;
    range.start = emphasis.toPoint().x();
    range.length = emphasis.toPoint().y();
    range.format.setFontWeight(QFont::Bold);
    range.format.setFontUnderline(true);
    layout.setFormats({range});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return;
    const bool selected = row.state & QStyle::State_Selected;
    const QPalette::ColorGroup group = row.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(area);
    painter->setPen(row.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(area.left(), area.top() + (area.height() - line.height()) / 2));
    painter->restore();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/pickmodel.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int margin = 6;
constexpr int lineGap = 1;
constexpr double detailSize = 0.88;
constexpr double detailStrength = 0.72;

QFont detailFont(const QFont &font)
{
    QFont smaller = font;
    if (font.pointSizeF() > 0)
        smaller.setPointSizeF(font.pointSizeF() * detailSize);
    return smaller;
}

QFont boldFont(QFont font)
{
    font.setBold(true);
    return font;
}

/// Between two colours, at a share of the first.
QColor mixed(const QColor &first, const QColor &second, double share)
{
    const auto part = [share](int a, int b) { return static_cast<int>(a * share + b * (1 - share)); };
    return {part(first.red(), second.red()), part(first.green(), second.green()), part(first.blue(), second.blue())};
}

/// The stretches of marked characters, in bold and underlined, so that they are also seen where a font has no bold letters.
QList<QTextLayout::FormatRange> formatsOf(const QList<qsizetype> &marks, qsizetype length)
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setFontUnderline(true);
    QList<QTextLayout::FormatRange> formats;
    for (const qsizetype mark : marks) {
        const int at = static_cast<int>(mark);
        if (mark >= length)
            break;
        if (!formats.isEmpty() && formats.last().start + formats.last().length == at)
            ++formats.last().length;
        else
            formats.append({at, 1, format});
    }
    return formats;
}

void paintCaption(QPainter &painter, const QRect &box, const QFont &font, const PickRow &row)
{
    const QFontMetrics metrics(boldFont(font));
    const QString shown = metrics.elidedText(row.caption, Qt::ElideRight, box.width());
    const bool isWhole = shown == row.caption;
    QTextLayout layout(shown, font);
    // The sign of the omission isn't one of the caption's characters.
    layout.setFormats(formatsOf(row.marks, isWhole ? shown.size() : shown.size() - 1));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(box.width());
    layout.endLayout();
    layout.draw(&painter, QPointF(box.left(), box.top() + (box.height() - line.height()) / 2));
}

} // namespace

void PickModel::setRows(std::vector<PickRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int PickModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PickModel::data(const QModelIndex &index, int role) const
{
    const PickRow &row = this->row(index.row());
    if (role == Qt::DisplayRole)
        return row.caption;
    if (role != Qt::AccessibleTextRole)
        return {};
    QStringList said{row.caption};
    if (!row.keys.isEmpty())
        said.append(row.keys);
    if (!row.detail.isEmpty())
        said.append(row.detail);
    return said.join(u", "_s);
}

PickDelegate::PickDelegate(const PickModel &model, QObject *parent) : QStyledItemDelegate(parent), m_model(model) {}

void PickDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const PickRow &row = m_model.row(index.row());
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    // The list never has the focus, but what it has selected is what the keys work on.
    const QPalette::ColorGroup group = QPalette::Active;
    const QColor back = option.palette.color(group, isSelected ? QPalette::Highlight : QPalette::Base);
    const QColor fore = option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor weak = mixed(fore, back, detailStrength);

    painter->save();
    painter->fillRect(option.rect, back);
    const QRect inside = option.rect.adjusted(2 * margin, margin / 2, -2 * margin, -margin / 2);
    const QFont small = detailFont(option.font);
    const int upper = QFontMetrics(option.font).height();
    int keysWidth = 0;
    if (!row.keys.isEmpty()) {
        keysWidth = option.fontMetrics.horizontalAdvance(row.keys) + 2 * margin;
        painter->setPen(weak);
        painter->setFont(option.font);
        painter->drawText(QRect(inside.left(), inside.top(), inside.width(), upper), Qt::AlignRight | Qt::AlignVCenter,
                          row.keys);
    }
    painter->setPen(row.enabled ? fore : weak);
    paintCaption(*painter, QRect(inside.left(), inside.top(), inside.width() - keysWidth, upper), option.font, row);
    painter->setPen(weak);
    painter->setFont(small);
    const QRect lower(inside.left(), inside.top() + upper + lineGap, inside.width(), QFontMetrics(small).height());
    painter->drawText(lower, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(small).elidedText(row.detail, Qt::ElideRight, lower.width()));
    painter->restore();
}

QSize PickDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int upper = QFontMetrics(option.font).height();
    const int lower = QFontMetrics(detailFont(option.font)).height();
    return {0, upper + lineGap + lower + margin};
}

} // namespace zephira

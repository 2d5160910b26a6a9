// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace zephira {

/// Reports when the editing of a row's label ends with a text, even an unchanged one. The row keeps its old text;
/// whoever listens decides about the new one.
class LabelEditDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

Q_SIGNALS:
    void labelEdited(const QPersistentModelIndex &row, const QString &newText) const;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace zephira {

/// Reports when the editing of a row's label ends with a text, even an unchanged one.
class LabelEditDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

Q_SIGNALS:
    void labelEdited(const QString &oldText, const QString &newText) const;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/labeleditdelegate.h"

namespace zephira {

void LabelEditDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QString oldText = index.data().toString();
    QStyledItemDelegate::setModelData(editor, model, index);
    Q_EMIT labelEdited(oldText, index.data().toString());
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/labeleditdelegate.h"

#include <QMetaProperty>

namespace zephira {

void LabelEditDelegate::setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &index) const
{
    Q_EMIT labelEdited(index, editor->metaObject()->userProperty().read(editor).toString());
}

} // namespace zephira

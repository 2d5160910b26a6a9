// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/linklistmodel.h"

namespace zephira {

LinkListModel::LinkListModel(QString heading, QIcon picture, QObject *parent)
    : QStringListModel(parent), m_heading(std::move(heading)), m_picture(std::move(picture))
{}

QVariant LinkListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_heading;
    return QStringListModel::headerData(section, orientation, role);
}

QVariant LinkListModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DecorationRole)
        return m_picture;
    // An address that is wider than its column can be read in the tip.
    return QStringListModel::data(index, role == Qt::ToolTipRole ? Qt::DisplayRole : role);
}

Qt::ItemFlags LinkListModel::flags(const QModelIndex &index) const
{
    return QStringListModel::flags(index) & ~Qt::ItemIsEditable;
}

} // namespace zephira

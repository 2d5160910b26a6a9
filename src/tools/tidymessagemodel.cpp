// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/tidymessagemodel.h"

#include <algorithm>
#include <iterator>

namespace zephira {

TidyMessageModel::TidyMessageModel(QString heading, Pictures pictures, QObject *parent)
    : QAbstractListModel(parent), m_heading(std::move(heading)), m_pictures(std::move(pictures))
{}

void TidyMessageModel::append(const std::vector<TidyMessage> &messages)
{
    if (messages.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(messages.size()) - 1);
    for (const auto kind : {TidyMessage::Kind::Warning, TidyMessage::Kind::Error}) {
        std::ranges::copy_if(messages, std::back_inserter(m_messages),
                             [kind](const TidyMessage &message) { return message.kind == kind; });
    }
    endInsertRows();
}

int TidyMessageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_messages.size());
}

QVariant TidyMessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_heading;
    return QAbstractListModel::headerData(section, orientation, role);
}

QVariant TidyMessageModel::data(const QModelIndex &index, int role) const
{
    const TidyMessage &message = this->message(index.row());
    switch (role) {
    case Qt::DisplayRole:
    // A sentence that is wider than the list can be read in the tip.
    case Qt::ToolTipRole:
        return message.text;
    case Qt::DecorationRole:
        return message.kind == TidyMessage::Kind::Warning ? m_pictures.warning : m_pictures.error;
    default:
        return {};
    }
}

} // namespace zephira

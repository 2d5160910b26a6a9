// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/pickpopup.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

namespace zephira {

/// The rows of a PickPopup. All can be moved to, so that what a disabled one says about itself is read.
class PickModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setRows(std::vector<PickRow> rows);
    const PickRow &row(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<PickRow> m_rows;
};

/// Paints a row in two lines: caption and keys above the detail.
class PickDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PickDelegate(const PickModel &model, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const PickModel &m_model;
};

} // namespace zephira

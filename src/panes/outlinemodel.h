// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/itemroles.h"
#include "panes/outline.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <array>
#include <vector>

namespace zephira {

/// The document tree's nodes: the fixed ones, and below them the leaves of one scan. A page may have a hundred thousand
/// leaves, so nodes aren't objects. Nodes have KeyRole (empty for leaves) and TagRole (leaves only).
class OutlineModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// 0-based index of a leaf's `<` in the scanned text; nothing for the fixed nodes.
    static constexpr int PositionRole = TagRole + 1;
    /// Number of the node's picture, as in OutlinePicture.
    static constexpr int PictureRole = TagRole + 2;

    using QAbstractItemModel::QAbstractItemModel;

    /// Replaces the leaves by those of a page. The scan's errors are passed on; the leaves found before an error stay.
    void parse(const QString &documentText);

    /// The fixed node of a group.
    QModelIndex groupIndex(OutlineGroup group) const;
    bool isLeaf(const QModelIndex &index) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    const OutlineLeaf &leafAt(const QModelIndex &index) const;
    QVariant rootData(const OutlineRoot &root, int role) const;
    QVariant leafData(const OutlineLeaf &leaf, int role) const;
    const QIcon &icon(OutlinePicture picture) const;

    static constexpr std::size_t groupCount = 17;
    std::array<std::vector<OutlineLeaf>, groupCount> m_leaves;
    /// Indexed by the picture's number; loaded from the theme when first painted.
    mutable std::array<QIcon, 5> m_icons;
};

} // namespace zephira

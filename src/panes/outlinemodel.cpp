// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/outlinemodel.h"

#include "widgets/themeicon.h"

#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The pictures' names in the icon theme, by their number.
constexpr std::array<QStringView, 5> iconNames{{{}, u"text-html", u"tag", u"folder", u"folder-html"}};

/// An index stores its parent's group as its internal id; the root, which has no parent, stores this value.
constexpr quintptr noParent = 1000;

std::size_t numberOf(OutlineGroup group)
{
    return static_cast<std::size_t>(group);
}

bool isChild(std::size_t node, std::size_t parent)
{
    return node != 0 && numberOf(outlineRoots()[node].parent) == parent;
}

/// The fixed children of a fixed node; they are consecutive in the table.
int fixedChildren(std::size_t parent)
{
    int count = 0;
    for (std::size_t node = 0; node < outlineRoots().size(); ++node)
        count += isChild(node, parent);
    return count;
}

std::size_t firstFixedChild(std::size_t parent)
{
    std::size_t node = 0;
    while (!isChild(node, parent))
        ++node;
    return node;
}

/// The group of an index, which must be a fixed node.
std::size_t groupOf(const QModelIndex &index)
{
    return index.internalId() == noParent ? 0
                                          : firstFixedChild(index.internalId()) + static_cast<std::size_t>(index.row());
}

} // namespace

void OutlineModel::parse(const QString &documentText)
{
    beginResetModel();
    const auto end = qScopeGuard([this] { endResetModel(); });
    for (std::vector<OutlineLeaf> &leaves : m_leaves)
        leaves.clear();
    scanOutline(documentText,
                [this](OutlineLeaf &&leaf) { m_leaves[numberOf(leaf.group)].push_back(std::move(leaf)); });
}

QModelIndex OutlineModel::groupIndex(OutlineGroup group) const
{
    const std::size_t node = numberOf(group);
    if (node == 0)
        return createIndex(0, 0, noParent);
    const std::size_t parent = numberOf(outlineRoots()[node].parent);
    return createIndex(static_cast<int>(node - firstFixedChild(parent)), 0, parent);
}

bool OutlineModel::isLeaf(const QModelIndex &index) const
{
    return index.isValid() && index.internalId() != noParent && index.row() >= fixedChildren(index.internalId());
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? groupOf(parent) : noParent);
}

QModelIndex OutlineModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == noParent)
        return {};
    return groupIndex(static_cast<OutlineGroup>(index.internalId()));
}

int OutlineModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return 1;
    if (parent.column() != 0 || isLeaf(parent))
        return 0;
    const std::size_t group = groupOf(parent);
    return fixedChildren(group) + static_cast<int>(m_leaves[group].size());
}

int OutlineModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant OutlineModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    return isLeaf(index) ? leafData(leafAt(index), role) : rootData(outlineRoots()[groupOf(index)], role);
}

const OutlineLeaf &OutlineModel::leafAt(const QModelIndex &index) const
{
    return m_leaves[index.internalId()][static_cast<std::size_t>(index.row() - fixedChildren(index.internalId()))];
}

QVariant OutlineModel::rootData(const OutlineRoot &root, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return root.caption.toString();
    case Qt::DecorationRole:
        return icon(root.picture);
    case KeyRole:
        return root.key.toString();
    case PictureRole:
        return static_cast<int>(root.picture);
    default:
        return {};
    }
}

QVariant OutlineModel::leafData(const OutlineLeaf &leaf, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return leaf.caption;
    case Qt::DecorationRole:
        return icon(OutlinePicture::Leaf);
    case KeyRole:
        return QString();
    case TagRole:
        return leaf.tagText;
    case PositionRole:
        return leaf.position;
    case PictureRole:
        return static_cast<int>(OutlinePicture::Leaf);
    default:
        return {};
    }
}

const QIcon &OutlineModel::icon(OutlinePicture picture) const
{
    const auto number = static_cast<std::size_t>(picture);
    if (m_icons[number].isNull())
        m_icons[number] = themeIcon(iconNames[number].toString());
    return m_icons[number];
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/filerowsmodel.h"

#include <algorithm>
#include <numeric>

namespace zephira {

namespace {

struct ColumnRow {
    QStringView caption;
    QString FileRow::*text;
    Qt::Alignment alignment;
};

constexpr ColumnRow columns[] = {
    {u"Name", &FileRow::name, Qt::AlignLeft},
    {u"Size", &FileRow::size, Qt::AlignRight},
    {u"Date", &FileRow::date, Qt::AlignLeft},
    {u"", &FileRow::bytes, Qt::AlignRight},
};

} // namespace

FileRowsModel::FileRowsModel(std::function<QIcon(int)> imageOf, QObject *parent)
    : QAbstractTableModel(parent), m_imageOf(std::move(imageOf))
{}

void FileRowsModel::setRows(std::vector<FileRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    if (m_sortColumn >= 0) {
        std::vector<FileRow> sorted;
        sorted.reserve(m_rows.size());
        for (const int row : sortedOrder())
            sorted.push_back(std::move(m_rows[static_cast<std::size_t>(row)]));
        m_rows = std::move(sorted);
    }
    endResetModel();
}

int FileRowsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FileRowsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FileRowsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const FileRow &row = m_rows[static_cast<std::size_t>(index.row())];
    const ColumnRow &column = columns[index.column()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row.*column.text;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    case Qt::DecorationRole:
        return index.column() == Name ? QVariant(image(row.image)) : QVariant();
    case ImageRole:
        return row.image;
    default:
        return {};
    }
}

QVariant FileRowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(columns[section].alignment | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(columns[section].caption.toString()) : QVariant();
}

Qt::ItemFlags FileRowsModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
    return index.column() == Name ? flags | Qt::ItemIsEditable : flags;
}

bool FileRowsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != Name || role != Qt::EditRole)
        return false;
    m_rows[static_cast<std::size_t>(index.row())].name = value.toString();
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

std::vector<int> FileRowsModel::sortedOrder() const
{
    QString FileRow::*text = columns[m_sortColumn].text;
    std::vector<int> order(m_rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, [&](int left, int right) {
        const int compared = (m_rows[static_cast<std::size_t>(left)].*text)
                                 .compare(m_rows[static_cast<std::size_t>(right)].*text, Qt::CaseInsensitive);
        return m_sortOrder == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    return order;
}

void FileRowsModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> newOrder = sortedOrder();
    std::vector<FileRow> sorted;
    std::vector<int> place(newOrder.size());
    sorted.reserve(newOrder.size());
    for (const int row : newOrder) {
        place[static_cast<std::size_t>(row)] = static_cast<int>(sorted.size());
        sorted.push_back(std::move(m_rows[static_cast<std::size_t>(row)]));
    }
    m_rows = std::move(sorted);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &cell : before)
        after.append(index(place[static_cast<std::size_t>(cell.row())], cell.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

QIcon FileRowsModel::image(int number) const
{
    // Looking an icon up in the theme is slow, and thousands of rows share the same few pictures.
    const auto place = static_cast<std::size_t>(number);
    if (m_images.size() <= place)
        m_images.resize(place + 1);
    if (m_images[place].isNull())
        m_images[place] = m_imageOf(number);
    return m_images[place];
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/filerow.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <functional>

namespace zephira {

/// The rows of a file list in four columns: Name, Size, Date, and one without a caption for the exact size. Rows keep
/// the given order until they are first sorted; from then on new rows are sorted too.
class FileRowsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Size, Date, Bytes, ColumnCount };
    /// Role of the number of a row's picture in the image lists.
    static constexpr int ImageRole = Qt::UserRole + 2;

    /// `imageOf` returns the picture for a number.
    explicit FileRowsModel(std::function<QIcon(int)> imageOf, QObject *parent = nullptr);

    const std::vector<FileRow> &rows() const { return m_rows; }
    void setRows(std::vector<FileRow> rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Changes a row's name in the model only; the caller has to rename the file.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    /// Sorts by the text of the column, without regard to case; equal rows keep their order.
    void sort(int column, Qt::SortOrder order) override;

private:
    std::vector<int> sortedOrder() const;
    QIcon image(int number) const;

    std::vector<FileRow> m_rows;
    std::function<QIcon(int)> m_imageOf;
    mutable std::vector<QIcon> m_images;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace zephira

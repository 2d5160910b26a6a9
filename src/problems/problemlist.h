// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "problems/problem.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>

#include <optional>
#include <vector>

namespace zephira {

/// What is wrong in the document, as rows with a line and a sentence. Above them are rows that say what isn't checked.
class ProblemList final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { LineColumn, TextColumn };

    using QAbstractTableModel::QAbstractTableModel;

    /// To be called before the rows are first shown: the pictures of the desktop cost some time.
    void loadPictures();
    /// @param lines  the lines of the problems, 0-based
    void set(const QStringList &notes, const std::vector<Problem> &problems, const std::vector<qsizetype> &lines);

    /// The number of a row's problem; -1 for a note.
    int problemOf(const QModelIndex &index) const;
    /// The row of a problem.
    QModelIndex rowOf(std::size_t problem) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        QString line;
        QString text;
        /// Nothing for a note.
        std::optional<Problem::Severity> severity = {};
    };

    std::vector<Row> m_rows;
    int m_notes = 0;
    QIcon m_error;
    QIcon m_warning;
    QIcon m_note;
};

} // namespace zephira

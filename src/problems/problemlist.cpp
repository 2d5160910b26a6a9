// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/problemlist.h"

#include <QApplication>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace zephira {

void ProblemList::loadPictures()
{
    const QStyle &style = *QApplication::style();
    m_error = style.standardIcon(QStyle::SP_MessageBoxCritical);
    m_warning = style.standardIcon(QStyle::SP_MessageBoxWarning);
    m_note = style.standardIcon(QStyle::SP_MessageBoxInformation);
}

void ProblemList::set(const QStringList &notes, const std::vector<Problem> &problems,
                      const std::vector<qsizetype> &lines)
{
    beginResetModel();
    m_rows.clear();
    m_notes = static_cast<int>(notes.size());
    for (const QString &note : notes)
        m_rows.push_back({{}, note});
    for (std::size_t i = 0; i < problems.size(); ++i)
        m_rows.push_back({QString::number(lines[i] + 1), problems[i].text, problems[i].severity});
    endResetModel();
}

int ProblemList::problemOf(const QModelIndex &index) const
{
    return index.isValid() && index.row() >= m_notes ? index.row() - m_notes : -1;
}

QModelIndex ProblemList::rowOf(std::size_t problem) const
{
    return index(m_notes + static_cast<int>(problem), TextColumn);
}

int ProblemList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProblemList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : TextColumn + 1;
}

QVariant ProblemList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[static_cast<std::size_t>(index.row())];
    const bool isText = index.column() == TextColumn;
    const bool isError = row.severity == Problem::Severity::Error;
    switch (role) {
    case Qt::DisplayRole:
        return isText ? row.text : row.line;
    case Qt::ToolTipRole:
        return isText ? QVariant(Qt::convertFromPlainText(row.text)) : QVariant();
    case Qt::DecorationRole:
        return isText ? QVariant(!row.severity ? m_note : isError ? m_error : m_warning) : QVariant();
    case Qt::AccessibleTextRole:
        if (!isText || !row.severity)
            return isText ? row.text : row.line;
        return (isError ? tr("Error: %1") : tr("Warning: %1")).arg(row.text);
    case Qt::TextAlignmentRole:
        return isText ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ProblemList::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == LineColumn ? tr("Line") : tr("Problem");
}

} // namespace zephira

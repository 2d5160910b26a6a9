// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchresults.h"

#include <QDir>
#include <QPoint>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What stands before the line's text.
QString linePrefix(const FoundMatch &match)
{
    return QString::number(match.line + 1) + u": "_s;
}

Qt::CheckState stateOf(const std::vector<bool> &chosen)
{
    const auto count = std::ranges::count(chosen, true);
    return count == 0                                      ? Qt::Unchecked
        : static_cast<std::size_t>(count) == chosen.size() ? Qt::Checked
                                                           : Qt::PartiallyChecked;
}

} // namespace

void SearchResults::begin(const QString &folder, bool replaces)
{
    beginResetModel();
    m_files.clear();
    m_folder = folder;
    m_replaces = replaces;
    endResetModel();
}

void SearchResults::add(std::vector<FoundFile> files)
{
    for (FoundFile &found : files) {
        const auto place = std::ranges::upper_bound(
            m_files, found.order, {}, [](const std::unique_ptr<File> &file) { return file->found.order; });
        const int row = static_cast<int>(place - m_files.begin());
        auto file = std::make_unique<File>();
        file->found = std::move(found);
        file->chosen.assign(file->found.matches.size(), m_replaces);
        beginInsertRows({}, row, row);
        m_files.insert(place, std::move(file));
        endInsertRows();
    }
}

int SearchResults::chosenCount() const
{
    std::ptrdiff_t count = 0;
    for (const std::unique_ptr<File> &file : m_files)
        count += std::ranges::count(file->chosen, true);
    return static_cast<int>(count);
}

void SearchResults::setNote(int number, const QString &note)
{
    m_files[static_cast<std::size_t>(number)]->note = note;
    const QModelIndex row = index(number, FoundColumn);
    Q_EMIT dataChanged(row, row);
}

void SearchResults::endReplacing()
{
    for (const std::unique_ptr<File> &file : m_files)
        file->chosen.assign(file->chosen.size(), false);
    m_replaces = false;
    if (m_files.empty())
        return;
    Q_EMIT dataChanged(index(0, FoundColumn), index(fileCount() - 1, FoundColumn));
    for (int number = 0; number < fileCount(); ++number) {
        const QModelIndex above = index(number, FoundColumn);
        Q_EMIT dataChanged(index(0, FoundColumn, above), index(rowCount(above) - 1, FoundColumn, above));
    }
    Q_EMIT chosenChanged();
}

int SearchResults::fileOf(const QModelIndex &index)
{
    if (!index.isValid())
        return -1;
    return index.internalPointer() ? index.parent().row() : index.row();
}

int SearchResults::matchOf(const QModelIndex &index)
{
    return index.isValid() && index.internalPointer() ? index.row() : -1;
}

QModelIndex SearchResults::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    // A match's index points to its file, a file's to nothing.
    return createIndex(row, column, parent.isValid() ? m_files[static_cast<std::size_t>(parent.row())].get() : nullptr);
}

QModelIndex SearchResults::parent(const QModelIndex &index) const
{
    const auto *file = static_cast<const File *>(index.internalPointer());
    return file ? createIndex(numberOf(*file), FoundColumn, nullptr) : QModelIndex();
}

int SearchResults::numberOf(const File &file) const
{
    const auto place = std::ranges::lower_bound(m_files, file.found.order, {},
                                                [](const std::unique_ptr<File> &each) { return each->found.order; });
    return static_cast<int>(place - m_files.begin());
}

int SearchResults::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return fileCount();
    const bool isFile = !parent.internalPointer() && parent.column() == FoundColumn;
    return isFile ? static_cast<int>(file(parent.row()).matches.size()) : 0;
}

int SearchResults::columnCount(const QModelIndex &) const
{
    return 2;
}

QVariant SearchResults::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (const auto *file = static_cast<const File *>(index.internalPointer()))
        return matchData(*file, index, role);
    return fileData(*m_files[static_cast<std::size_t>(index.row())], index, role);
}

QString SearchResults::nameOf(const File &file) const
{
    return QDir(m_folder).relativeFilePath(file.found.path);
}

QVariant SearchResults::fileData(const File &file, const QModelIndex &index, int role) const
{
    if (index.column() != FoundColumn)
        return {};
    const auto count = file.found.matches.size();
    switch (role) {
    case Qt::DisplayRole: {
        const QString counted =
            count == 1 ? tr("%1 (1 match)").arg(nameOf(file)) : tr("%1 (%2 matches)").arg(nameOf(file)).arg(count);
        return file.note.isEmpty() ? counted : counted + u" \u2013 "_s + file.note;
    }
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(file.found.path);
    case Qt::CheckStateRole:
        return m_replaces ? QVariant(stateOf(file.chosen)) : QVariant();
    default:
        return {};
    }
}

QVariant SearchResults::matchData(const File &file, const QModelIndex &index, int role) const
{
    const FoundMatch &match = file.found.matches[static_cast<std::size_t>(index.row())];
    if (role == Qt::CheckStateRole && m_replaces && index.column() == FoundColumn)
        return file.chosen[static_cast<std::size_t>(index.row())] ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != EmphasisRole)
        return {};
    if (index.column() == ReplacedColumn) {
        const ReplacedLine line = replacedLine(match);
        return role == Qt::DisplayRole ? QVariant(line.text) : QVariant(QPoint(line.start, line.length));
    }
    const QString prefix = linePrefix(match);
    if (role == Qt::DisplayRole)
        return prefix + match.text;
    return QPoint(match.start + static_cast<int>(prefix.size()), match.length);
}

bool SearchResults::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !m_replaces || !index.isValid() || index.column() != FoundColumn)
        return false;
    File &file = *m_files[static_cast<std::size_t>(fileOf(index))];
    const bool on = value.toInt() == Qt::Checked;
    const int match = matchOf(index);
    if (match < 0)
        file.chosen.assign(file.chosen.size(), on);
    else
        file.chosen[static_cast<std::size_t>(match)] = on;
    const QModelIndex above = match < 0 ? index : index.parent();
    Q_EMIT dataChanged(above, above);
    Q_EMIT dataChanged(this->index(0, FoundColumn, above), this->index(rowCount(above) - 1, FoundColumn, above));
    Q_EMIT chosenChanged();
    return true;
}

QVariant SearchResults::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == FoundColumn ? tr("Now") : tr("Replaced");
}

Qt::ItemFlags SearchResults::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (m_replaces && index.column() == FoundColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

} // namespace zephira

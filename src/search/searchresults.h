// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "search/searchrun.h"

#include <QAbstractItemModel>

#include <memory>
#include <vector>

namespace zephira {

/// The results of a search as a tree: the files in the order in which they were searched, and below each its matches. If
/// the matches are to be replaced, each row has a check box, and a second column has the lines as they will be.
class SearchResults final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { FoundColumn, ReplacedColumn };
    /// The place of the match within the row's text, as a QPoint of start and length.
    static constexpr int EmphasisRole = Qt::UserRole;

    using QAbstractItemModel::QAbstractItemModel;

    /// Forgets everything and begins a new tree. The files' names are shown relative to the folder.
    void begin(const QString &folder, bool replaces);
    void add(std::vector<FoundFile> files);

    int fileCount() const { return static_cast<int>(m_files.size()); }
    const FoundFile &file(int number) const { return m_files[static_cast<std::size_t>(number)]->found; }
    /// For each match of the file whether its box is checked.
    const std::vector<bool> &chosen(int number) const { return m_files[static_cast<std::size_t>(number)]->chosen; }
    int chosenCount() const;
    /// Says behind the file's name what has become of it.
    void setNote(int number, const QString &note);
    /// Takes the check boxes away.
    void endReplacing();

    /// The number of the file of a row, and that of the match; -1 for the row of a file.
    static int fileOf(const QModelIndex &index);
    static int matchOf(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// Another number of matches is checked.
    void chosenChanged();

private:
    struct File {
        FoundFile found;
        std::vector<bool> chosen = {};
        QString note = {};
    };

    QVariant fileData(const File &file, const QModelIndex &index, int role) const;
    QVariant matchData(const File &file, const QModelIndex &index, int role) const;
    QString nameOf(const File &file) const;
    int numberOf(const File &file) const;

    QString m_folder;
    bool m_replaces = false;
    /// On the heap, because the indexes of the matches point to them.
    std::vector<std::unique_ptr<File>> m_files;
};

} // namespace zephira

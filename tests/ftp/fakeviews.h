// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/localview.h"
#include "ftp/remoteview.h"

#include <algorithm>
#include <set>

namespace zephira {

/// A file list in memory. Rows are selected by name.
struct FakeFileRows final : FileRows {
    std::vector<FileRow> rows;
    std::set<QString> selection;
    int edits = 0;

    int count() const override { return static_cast<int>(rows.size()); }
    bool contains(const QString &name) const override
    {
        return std::ranges::find(rows, name, &FileRow::name) != rows.end();
    }
    std::vector<FileRow> selected() const override
    {
        std::vector<FileRow> chosen;
        std::ranges::copy_if(rows, std::back_inserter(chosen),
                             [this](const FileRow &row) { return selection.contains(row.name); });
        return chosen;
    }
    void setRows(std::vector<FileRow> newRows) override
    {
        rows = std::move(newRows);
        selection.clear();
    }
    void editName() override { ++edits; }
};

/// The server's side in memory: the tree is a list of keys, in the order in which they were added.
struct FakeRemoteView final : RemoteView {
    FakeFileRows list;
    QStringList keys;
    std::optional<RemoteNode> selection;
    QString pathText;
    bool allFiles = true;

    FileRows &files() override { return list; }
    void clearTree() override { keys.clear(); }
    void addRoot() override { keys.append(remoteRootKey.toString()); }
    std::optional<RemoteNode> selectedNode() const override { return selection; }
    void selectNode(const QString &key) override
    {
        if (!keys.contains(key))
            return;
        const QString text = key == remoteRootKey ? remoteRootText.toString() : key.section(u'/', -2, -2);
        selection = RemoteNode{key, text};
    }
    void rebuildNode(const QString &key) override
    {
        keys.removeIf([&](const QString &other) { return other.size() > key.size() && other.startsWith(key); });
    }
    void addFolders(const QString &parentKey, const QStringList &names) override
    {
        for (const QString &name : names)
            keys.append(parentKey + name + u'/');
    }
    void setPathText(const QString &text) override { pathText = text; }
    void markPattern(bool all) override { allFiles = all; }
};

/// The local side: folders on the disk, and file names that the test sets.
struct FakeLocalView final : LocalView {
    FakeFileRows list;
    QString path;
    QStringList names;
    /// Folders that can't be opened.
    std::set<QString> unreadable;
    QString pathText;
    QString pattern = QStringLiteral("*.*");
    bool allFiles = true;
    int refreshes = 0;

    FileRows &files() override { return list; }
    QString folder() const override { return path; }
    bool setFolder(const QString &wanted) override
    {
        if (unreadable.contains(wanted))
            return false;
        path = wanted;
        return true;
    }
    void refreshLists() override { ++refreshes; }
    QStringList fileNames() const override { return names; }
    void setPathText(const QString &text) override { pathText = text; }
    void setPattern(const QString &text, bool all) override
    {
        pattern = text;
        allFiles = all;
    }
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

class QListWidget;
class QListWidgetItem;

namespace zephira {

struct AppContext;
class FileListBox;
class FolderTree;

/// The library of script snippets in the side pane: a tree of folders, and the snippets of the folder selected in it. A
/// double click inserts the whole file after the selection.
class ScriptLibrary final : public QGroupBox
{
    Q_OBJECT

public:
    explicit ScriptLibrary(const AppContext &context, QWidget *parent = nullptr);

    /// Makes a folder the root of the tree and lists its snippets.
    void setRootFolder(const QString &folder);

private:
    void listFolder(const QString &folder);
    void paste(const QString &fileName);

    const AppContext &m_context;
    FolderTree *m_folders;
    QListWidget *m_scripts;
    /// The names of the files on disk; always hidden.
    FileListBox *m_files;
};

} // namespace zephira

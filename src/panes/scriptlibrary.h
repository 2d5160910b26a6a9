// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

class QListWidget;
class QListWidgetItem;

namespace zephira {

struct AppContext;
class FileListBox;
class FolderTree;

/// The library of script snippets in the side pane: a tree of folders, and the snippets of the folder that is selected in
/// it. A double click pastes the whole file behind the selection.
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
    /// The names on disk; never seen itself.
    FileListBox *m_files;
};

} // namespace zephira

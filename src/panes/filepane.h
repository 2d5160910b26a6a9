// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/filelistbox.h"
#include "widgets/folderwatch.h"

#include <QWidget>

#include <memory>

namespace zephira {

class Prompts;

namespace Ui {
class FilePane;
}

/// The file manager: drives, the project folder, a folder tree, and the files of the folder selected in it. The list of
/// files mirrors the hidden `file`.
class FilePane : public QWidget
{
    Q_OBJECT

public:
    explicit FilePane(Prompts &prompts, QWidget *parent = nullptr);
    ~FilePane() override;

    /// Whether path changes move the folder tree's root or its selection.
    void setRootSelect(bool on) { m_rootSelect = on; }

    QString projectPath() const;
    /// Sets the text of `PrjPath`, which moves the folder tree and lists the folder.
    void setProjectPath(const QString &path);

    FileListBox &fileList() { return *m_file; }
    /// Text of the item selected in `ListFiles`, or empty.
    QString selectedFile() const;

    /// Selects a file's row, or selects it later if it isn't listed yet.
    void selectFile(const QString &name);

    /// Moves the folder tree to the folder and lists it. If the folder doesn't exist, the tree stays where it is.
    void showFolder(const QString &folder);

Q_SIGNALS:
    /// A file of the list was double-clicked, or Return was pressed.
    void fileActivated();
    /// The list's menu was requested at a point in screen coordinates.
    void menuWanted(const QPoint &place);

private:
    void setFolder(const QString &folder);
    void listFolder();
    void refresh();
    void changeDrive();
    void chooseProjectPath();

    std::unique_ptr<Ui::FilePane> m_ui;
    Prompts &m_prompts;
    FileListBox *m_file;
    FolderWatch m_watch;
    /// The pattern of the listed files. A newer pattern takes effect at the next change of the folder.
    QString m_listedPattern;
    /// The file whose row is selected as soon as it appears.
    QString m_awaited;
    bool m_rootSelect = false;
};

} // namespace zephira

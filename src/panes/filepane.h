// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panes/folderwatch.h"
#include "widgets/filelistbox.h"

#include <QWidget>

#include <memory>

namespace zephira {

class Prompts;

namespace Ui {
class FilePane;
}

/// The file manager: drives, the project folder, a folder tree and the files of the folder that is selected in it. The
/// list of files mirrors the hidden `file`.
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
    /// Text of the selected item of `ListFiles`, or empty.
    QString selectedFile() const;

    /// Selects a file's row; one that isn't listed yet, once it is.
    void selectFile(const QString &name);

    /// Moves the folder tree to the folder and lists it. A folder that isn't there leaves the tree where it is.
    void showFolder(const QString &folder);

Q_SIGNALS:
    /// A double click on a file of the list, or Return.
    void fileActivated();
    /// The list's menu is asked for at a point of the screen.
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
    /// The pattern that the list was filled by. A newer one waits for the next change of the folder.
    QString m_listedPattern;
    /// A file whose row is to be selected when it comes.
    QString m_awaited;
    bool m_rootSelect = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panes/filelistbox.h"

#include <QWidget>

#include <memory>

namespace zephira {

class Prompts;

namespace Ui {
class FilePane;
}

/// The file manager: drives, the project folder, a folder tree and the files of the folder that is selected in it.
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

    FileListBox &fileList() { return m_file; }
    /// Text of the selected item of `ListFiles`, or empty.
    QString selectedFile() const;

Q_SIGNALS:
    void fileActivated();

private:
    void setFolder(const QString &folder);
    void listFolder();
    void fillDrives();
    void chooseProjectPath();

    std::unique_ptr<Ui::FilePane> m_ui;
    Prompts &m_prompts;
    FileListBox m_file;
    bool m_rootSelect = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/localview.h"

#include <QObject>

class QAction;
class QLabel;

namespace zephira {

class DirListBox;
class DriveBox;
class FileListBox;
class FileListView;

/// This machine's side of the window: implements the view for the local commands with the window's controls, which
/// outlive the pane.
class LocalPane final : public QObject, public LocalView
{
    Q_OBJECT

public:
    struct Parts {
        DriveBox &drives;
        DirListBox &folders;
        FileListBox &names;
        FileListView &list;
        QLabel &path;
        QAction &allFiles;
        QAction &definedTypes;
    };

    explicit LocalPane(const Parts &parts, QObject *parent = nullptr);

    FileRows &files() override;
    QString folder() const override;
    bool setFolder(const QString &path) override;
    void refreshLists() override;
    QStringList fileNames() const override;
    void setPathText(const QString &text) override;
    void setPattern(const QString &pattern, bool all) override;

Q_SIGNALS:
    /// The user has chosen a drive in the list.
    void driveChosen(const QString &drive);
    /// The user has moved to a folder.
    void folderChosen();
    void drivesClicked();
    void foldersClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Parts m_parts;
};

} // namespace zephira

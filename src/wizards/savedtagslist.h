// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/folderwatch.h"

#include <QListWidget>

namespace zephira {

/// The list of saved tags in a folder, which follows what happens in that folder. No row is selected until the user
/// selects one.
class SavedTagsList final : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ path WRITE setPath)
    Q_PROPERTY(QString Pattern READ pattern CONSTANT)
    Q_PROPERTY(QString FileName READ fileName)

public:
    explicit SavedTagsList(QWidget *parent = nullptr);

    QString path() const { return m_path; }
    /// Lists the files of a folder, given without a trailing separator. It needn't exist.
    void setPath(const QString &folder);
    QString pattern() const;
    /// Name of the selected file, or empty.
    QString fileName() const;

Q_SIGNALS:
    /// The user has selected a file.
    void picked(const QString &fileName);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void refresh();
    void tell();

    QString m_path;
    FolderWatch m_watch;
    bool m_isRefreshing = false;
};

} // namespace zephira

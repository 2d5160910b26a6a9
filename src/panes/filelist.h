// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace zephira {

/// The visible list of a folder's files: one column of names, each with a small picture of its kind.
class FileList : public QListWidget
{
    Q_OBJECT

public:
    explicit FileList(QWidget *parent = nullptr);

    /// Replaces the rows; thousands take a few milliseconds.
    void setNames(const QStringList &names);
    QStringList names() const;

Q_SIGNALS:
    /// A double click on a row, or Return.
    void opened();
    /// The right button was released over the list, or the menu key pressed. A point of the screen.
    void menuWanted(const QPoint &place);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zephira

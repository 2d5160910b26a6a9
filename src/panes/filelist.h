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

    /// Replaces the rows; thousands of them take a few milliseconds.
    void setNames(const QStringList &names);
    QStringList names() const;

Q_SIGNALS:
    /// A row was double-clicked, or Return was pressed.
    void opened();
    /// The right button was released over the list, or the menu key was pressed. `place` is in screen coordinates.
    void menuWanted(const QPoint &place);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace zephira

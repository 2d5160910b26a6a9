// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeWidget>

namespace zephira {

/// The list of folders: the path from the root to the current folder, one row each, and under it the current folder's
/// subfolders. A double click or Enter moves to a folder.
class DirListBox final : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ path WRITE setPath NOTIFY pathChanged)

public:
    explicit DirListBox(QWidget *parent = nullptr);

    /// The current folder, without a trailing separator unless it is the root.
    QString path() const { return m_path; }
    /// Moves to a folder. Returns false and stays where it is if the folder doesn't exist or can't be read.
    bool setPath(const QString &path);
    /// Reads the folders again. If the current one is gone, its nearest existing ancestor takes its place.
    void refresh();

Q_SIGNALS:
    void pathChanged(const QString &path);
    /// Not emitted for the second click of a double click, which has already moved to a folder.
    void listClicked();
    void deletePressed();

protected:
    /// The rows are always expanded, so they need no expander marks.
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override {}
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void fill();
    void openItem(const QTreeWidgetItem *item);

    QString m_path;
    /// From the second press of a double click to its end.
    bool m_isSecondClick = false;
};

} // namespace zephira

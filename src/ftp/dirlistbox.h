// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeWidget>

namespace zephira {

/// The list of folders: those on the way from the root to the current one, one below the other, and below it the folders
/// inside. A double click or Enter moves to a folder.
class DirListBox final : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ path WRITE setPath NOTIFY pathChanged)

public:
    explicit DirListBox(QWidget *parent = nullptr);

    /// Without a separator at its end, unless it is the root.
    QString path() const { return m_path; }
    /// Returns false, and stays where it is, if the folder isn't there or can't be read.
    bool setPath(const QString &path);
    /// Reads the folders anew. If the current one is gone, the nearest above it takes its place.
    void refresh();

Q_SIGNALS:
    void pathChanged(const QString &path);
    /// The second click of a double click isn't told of: it has moved to a folder by then.
    void listClicked();
    void deletePressed();

protected:
    /// What always stands open needs no marks to open it.
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ftp/filerow.h"

#include <QTreeView>

#include <functional>

class QListView;

namespace zephira {

class FileRowsModel;

/// A list of files in four views: large icons, small icons, list and report, numbered from 0. The report is this widget
/// itself; the others lie over it, with the same rows and selection. A click on a column's head sorts by it, and each one
/// turns the order round.
class FileListView final : public QTreeView, public FileRows
{
    Q_OBJECT
    Q_PROPERTY(int View READ view WRITE setView)

public:
    enum View { LargeIcons, SmallIcons, List, Report };

    explicit FileListView(QWidget *parent = nullptr);

    int view() const { return m_view; }
    void setView(int view);
    /// Starts a drag with the selected rows' pictures; nothing takes the drop.
    void setDragging(bool on);

    /// Decides about a name that was edited: the old one comes back when it gives false.
    std::function<bool(const QString &oldName, const QString &newName)> mayRename;

    int count() const override;
    bool contains(const QString &name) const override;
    std::vector<FileRow> selected() const override;
    void setRows(std::vector<FileRow> rows) override;
    void editName() override;

Q_SIGNALS:
    /// The left button was released over the list; the selection is as the click has made it.
    void listClicked();
    /// A double click, or Enter.
    void opened();
    void renamePressed();
    void deletePressed();
    void deleteReleased();
    void popupRequested(const QPoint &place);
    void editStarted(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QAbstractItemView &shownView() const;
    void prepare(QAbstractItemView &view);
    void applyDragging();
    bool takeKey(const QWidget &view, const QKeyEvent &key);
    void requestPopup(const QPoint &place);
    void sortBy(int column);
    void endEdit(const QPersistentModelIndex &cell, const QString &newName);

    FileRowsModel *m_model;
    QListView *m_icons;
    int m_view = Report;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    bool m_dragging = false;
};

} // namespace zephira

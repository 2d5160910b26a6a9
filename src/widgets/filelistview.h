// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/filelistmode.h"
#include "widgets/filerow.h"

#include <QTreeView>

#include <functional>
#include <utility>

class QListView;

namespace zephira {

class FileRowsModel;

/// A list of files in the four views of FileListMode. The report is this widget itself; the other views lie on top of it
/// and share its rows and selection. A click on a column header sorts by that column and reverses the order each time.
class FileListView final : public QTreeView, public FileRows
{
    Q_OBJECT
    Q_PROPERTY(int View READ view WRITE setView)

public:
    explicit FileListView(QWidget *parent = nullptr);

    int view() const { return static_cast<int>(m_view); }
    void setView(int view);
    void setView(FileListMode view) { setView(static_cast<int>(view)); }
    /// Enables dragging, which shows the selected rows' pictures; nothing accepts the drop.
    void setDragging(bool on);

    /// `mayRename` is called with an edited name, and returns false to restore the old one. Without it every old name
    /// is restored.
    void setRenaming(std::function<bool(const QString &oldName, const QString &newName)> mayRename)
    {
        m_mayRename = std::move(mayRename);
    }

    int count() const override;
    bool contains(const QString &name) const override;
    std::vector<FileRow> selected() const override;
    void setRows(std::vector<FileRow> rows) override;
    void editName() override;

Q_SIGNALS:
    /// The left button was released over the list; the click has already changed the selection.
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

    std::function<bool(const QString &oldName, const QString &newName)> m_mayRename;
    FileRowsModel *m_model;
    QListView *m_icons;
    FileListMode m_view = FileListMode::Report;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    bool m_dragging = false;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/filelistview.h"

#include "widgets/fileicons.h"
#include "widgets/filerowsmodel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMetaProperty>
#include <QStyledItemDelegate>

#include <algorithm>

namespace zephira {

namespace {

constexpr int columnWidths[] = {190, 90, 150, 80};

/// The layout of an icon view.
struct IconLayout {
    QListView::ViewMode mode;
    QListView::Flow flow;
    int iconSize;
    QSize grid;
};

constexpr IconLayout iconLayouts[] = {
    {QListView::IconMode, QListView::LeftToRight, 32, {104, 90}},
    {QListView::ListMode, QListView::LeftToRight, 16, {190, 24}},
    {QListView::ListMode, QListView::TopToBottom, 16, {190, 24}},
};

/// The icon views, which report when the left button is released over them.
class IconList final : public QListView
{
public:
    IconList(QWidget *parent, std::function<void()> released) : QListView(parent), m_released(std::move(released)) {}

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QListView::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            m_released();
    }

private:
    std::function<void()> m_released;
};

/// Edits names and passes a new name on to the list, which decides about it.
class NameDelegate final : public QStyledItemDelegate
{
public:
    using Started = std::function<void(const QString &)>;
    using Ended = std::function<void(const QModelIndex &, const QString &)>;

    NameDelegate(QObject *parent, Started started, Ended ended)
        : QStyledItemDelegate(parent), m_started(std::move(started)), m_ended(std::move(ended))
    {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        // All cells of the grid have the same size; the first name must not decide how much of the others is shown.
        constexpr QSize gap(6, 2);
        const auto *list = qobject_cast<const QListView *>(option.widget);
        return list && list->gridSize().isValid() ? list->gridSize() - gap
                                                  : QStyledItemDelegate::sizeHint(option, index);
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        m_started(index.data().toString());
        return QStyledItemDelegate::createEditor(parent, option, index);
    }

    /// Ignores the Tab keys, which would end the editing and start it for the next name.
    bool eventFilter(QObject *editor, QEvent *event) override
    {
        const bool isTab = event->type() == QEvent::KeyPress
            && (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Tab
                || static_cast<QKeyEvent *>(event)->key() == Qt::Key_Backtab);
        return isTab || QStyledItemDelegate::eventFilter(editor, event);
    }

    void setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &index) const override
    {
        m_ended(index, editor->property(editor->metaObject()->userProperty().name()).toString());
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The alignment meant for columns doesn't suit a name below its picture.
        if (option->decorationPosition == QStyleOptionViewItem::Top)
            option->displayAlignment = Qt::AlignHCenter | Qt::AlignTop;
    }

private:
    Started m_started;
    Ended m_ended;
};

} // namespace

FileListView::FileListView(QWidget *parent)
    : QTreeView(parent)
    , m_model(new FileRowsModel(&fileIcon, this))
    , m_icons(new IconList(this, [this] { Q_EMIT listClicked(); }))
{
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    for (int column = 0; column < FileRowsModel::ColumnCount; ++column)
        header()->resizeSection(column, columnWidths[column]);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, &FileListView::sortBy);

    m_icons->setModel(m_model);
    m_icons->setSelectionModel(selectionModel());
    m_icons->setUniformItemSizes(true);
    m_icons->setLayoutMode(QListView::Batched);
    m_icons->setResizeMode(QListView::Adjust);
    m_icons->setWrapping(true);
    m_icons->hide();
    prepare(*this);
    prepare(*m_icons);
}

void FileListView::prepare(QAbstractItemView &view)
{
    view.setSelectionMode(ExtendedSelection);
    view.setSelectionBehavior(SelectRows);
    view.setEditTriggers(NoEditTriggers);
    view.setTextElideMode(Qt::ElideMiddle);
    view.installEventFilter(this);
    view.viewport()->installEventFilter(this);
    connect(&view, &QAbstractItemView::doubleClicked, this, &FileListView::opened);
    view.setItemDelegate(new NameDelegate(
        &view, [this](const QString &name) { Q_EMIT editStarted(name); },
        [this](const QPersistentModelIndex &cell, const QString &name) {
            // The editor must be gone before any question appears: that takes the editor's focus, which would end the
            // editing again.
            QMetaObject::invokeMethod(
                this, [this, cell, name] { endEdit(cell, name); }, Qt::QueuedConnection);
        }));
}

void FileListView::setView(int view)
{
    m_view = FileListMode(
        std::clamp(view, static_cast<int>(FileListMode::LargeIcons), static_cast<int>(FileListMode::Report)));
    m_icons->setVisible(m_view != FileListMode::Report);
    setFocusProxy(m_view == FileListMode::Report ? nullptr : m_icons);
    if (m_view == FileListMode::Report)
        return;
    const IconLayout &layout = iconLayouts[static_cast<int>(m_view)];
    m_icons->setViewMode(layout.mode);
    m_icons->setFlow(layout.flow);
    m_icons->setMovement(QListView::Static);
    m_icons->setIconSize({layout.iconSize, layout.iconSize});
    m_icons->setGridSize(layout.grid);
    m_icons->setWordWrap(layout.mode == QListView::IconMode);
    // A wrapping list scrolls in one direction only; the gap after the last column must not cause a scroll bar in the
    // other.
    const bool growsDown = layout.flow == QListView::LeftToRight;
    m_icons->setHorizontalScrollBarPolicy(growsDown ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    m_icons->setVerticalScrollBarPolicy(growsDown ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    applyDragging();
    m_icons->setGeometry(rect());
    m_icons->raise();
}

void FileListView::setDragging(bool on)
{
    m_dragging = on;
    applyDragging();
}

/// Must be called after each change of the view mode, which resets the drag mode.
void FileListView::applyDragging()
{
    setDragDropMode(m_dragging ? DragOnly : NoDragDrop);
    m_icons->setDragDropMode(m_dragging ? DragOnly : NoDragDrop);
}

int FileListView::count() const
{
    return m_model->rowCount();
}

bool FileListView::contains(const QString &name) const
{
    return std::ranges::find(m_model->rows(), name, &FileRow::name) != m_model->rows().end();
}

std::vector<FileRow> FileListView::selected() const
{
    std::vector<int> numbers;
    const QModelIndexList cells = selectionModel()->selectedRows();
    for (const QModelIndex &cell : cells)
        numbers.push_back(cell.row());
    std::ranges::sort(numbers);
    std::vector<FileRow> rows;
    rows.reserve(numbers.size());
    for (const int number : numbers)
        rows.push_back(m_model->rows()[static_cast<std::size_t>(number)]);
    return rows;
}

void FileListView::setRows(std::vector<FileRow> rows)
{
    m_model->setRows(std::move(rows));
}

void FileListView::editName()
{
    const QModelIndexList cells = selectionModel()->selectedRows();
    if (cells.isEmpty())
        return;
    const QModelIndex current = currentIndex().siblingAtColumn(FileRowsModel::Name);
    QAbstractItemView &view = shownView();
    view.setFocus();
    view.edit(cells.contains(current) ? current : *std::ranges::min_element(cells, std::less<QModelIndex>()));
}

QAbstractItemView &FileListView::shownView() const
{
    return m_view == FileListMode::Report ? const_cast<FileListView &>(*this)
                                          : static_cast<QAbstractItemView &>(*m_icons);
}

void FileListView::sortBy(int column)
{
    m_order = m_order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_model->sort(column, m_order);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, m_order);
}

void FileListView::endEdit(const QPersistentModelIndex &cell, const QString &newName)
{
    const QString oldName = cell.data().toString();
    if (!cell.isValid() || newName.isEmpty() || newName == oldName || !m_mayRename)
        return;
    // The rows may have changed meanwhile.
    if (m_mayRename(oldName, newName) && cell.isValid())
        m_model->setData(cell, newName, Qt::EditRole);
}

bool FileListView::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return takeKey(*static_cast<QWidget *>(watched), *static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        if (const auto *mouse = static_cast<QMouseEvent *>(event); mouse->button() == Qt::RightButton)
            requestPopup(mouse->globalPosition().toPoint());
        return false;
    case QEvent::ContextMenu: {
        // The mouse press has already requested the menu; this handles the menu key.
        const auto *menu = static_cast<QContextMenuEvent *>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard)
            requestPopup(menu->globalPos());
        return true;
    }
    default:
        return QTreeView::eventFilter(watched, event);
    }
}

/// Emits the signals for the keys that the window handles. Keys that a name's editor leaves unhandled are ignored.
bool FileListView::takeKey(const QWidget &view, const QKeyEvent &key)
{
    const bool pressed = key.type() == QEvent::KeyPress;
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool isDelete = key.key() == Qt::Key_Delete;
    const bool isRename = key.key() == Qt::Key_F2;
    if (view.hasFocus() && pressed && key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
        const QAbstractItemView &shown = shownView();
        requestPopup(shown.viewport()->mapToGlobal(shown.visualRect(currentIndex()).center()));
        return true;
    }
    if (!view.hasFocus() || key.isAutoRepeat() || !(isDelete || ((isEnter || isRename) && pressed)))
        return false;
    if (isRename)
        Q_EMIT renamePressed();
    else if (isEnter)
        Q_EMIT opened();
    else if (pressed)
        Q_EMIT deletePressed();
    else
        Q_EMIT deleteReleased();
    return true;
}

/// Deferred, because the press has to select its row before the menu opens.
void FileListView::requestPopup(const QPoint &place)
{
    QMetaObject::invokeMethod(
        this, [this, place] { Q_EMIT popupRequested(place); }, Qt::QueuedConnection);
}

void FileListView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT listClicked();
}

void FileListView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    m_icons->setGeometry(rect());
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/linklist.h"

#include <QStringListModel>
#include <QStyledItemDelegate>

namespace zephira {

namespace {

/// Rows of the list's extent.
class ExtentDelegate final : public QStyledItemDelegate
{
public:
    explicit ExtentDelegate(LinkList *list) : QStyledItemDelegate(list), m_list(list) {}

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        // Texts have one line each, whatever line ends they contain.
        constexpr int margin = 4;
        return {m_list->horizontalExtent(), option.fontMetrics.height() + margin};
    }

private:
    const LinkList *const m_list;
};

} // namespace

LinkList::LinkList(QWidget *parent) : QListView(parent), m_model(new QStringListModel(this))
{
    setModel(m_model);
    setItemDelegate(new ExtentDelegate(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
}

QStringList LinkList::rows() const
{
    return m_model->stringList();
}

void LinkList::setRows(const QStringList &rows)
{
    m_model->setStringList(rows);
}

void LinkList::append(const QStringList &rows)
{
    m_model->setStringList(m_model->stringList() + rows);
}

void LinkList::setHorizontalExtent(int pixels)
{
    m_extent = pixels;
    scheduleDelayedItemsLayout();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/itemchoice.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace zephira {

namespace {

/// Measuring and painting take time proportional to the length of the text, and a line of a data file may have millions
/// of characters.
class ShortTexts final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        constexpr qsizetype longestShown = 1000;
        return QStyledItemDelegate::displayText(value.toString().left(longestShown), locale);
    }
};

/// Treats the Return key like a double click.
class ReturnKey final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        auto *view = static_cast<QAbstractItemView *>(watched);
        if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !view->currentIndex().isValid())
            return false;
        Q_EMIT view->doubleClicked(view->currentIndex());
        return true;
    }
};

} // namespace

void onItemChosen(QAbstractItemView &view, QObject *receiver, std::function<void(const QModelIndex &)> choose)
{
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setItemDelegate(new ShortTexts(&view));
    view.installEventFilter(new ReturnKey(&view));
    if (auto *tree = qobject_cast<QTreeView *>(&view)) {
        tree->setExpandsOnDoubleClick(false);
        tree->setUniformRowHeights(true);
    }
    QObject::connect(&view, &QAbstractItemView::doubleClicked, receiver, std::move(choose));
}

} // namespace zephira

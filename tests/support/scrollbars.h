// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

namespace zephira {

/// A frame's edge or a gap behind the last entry is nothing that anybody would scroll to see; in pixels.
inline constexpr int unseenEdge = 2;

/// Lets layouts that were put off come to their end: a list may lay itself out anew because of what it has just done.
inline void settleLayouts()
{
    constexpr int longEnough = 30; // milliseconds
    QTest::qWait(longEnough);
}

/// The entry of a list or tree below which there is none.
inline QModelIndex lastEntry(const QAbstractItemView &view)
{
    const QAbstractItemModel &model = *view.model();
    const auto *tree = qobject_cast<const QTreeView *>(&view);
    QModelIndex last = view.rootIndex();
    do {
        last = model.index(model.rowCount(last) - 1, 0, last);
    } while (tree && last.isValid() && tree->isExpanded(last) && model.rowCount(last) > 0);
    return last;
}

/// How much of an area's content lies beyond its viewport, in pixels where that is known, else in the bar's own steps.
inline int hiddenPart(const QAbstractScrollArea &area, Qt::Orientation orientation)
{
    const QScrollBar *bar = orientation == Qt::Vertical ? area.verticalScrollBar() : area.horizontalScrollBar();
    const int steps = bar->maximum() - bar->minimum();
    const auto *view = qobject_cast<const QAbstractItemView *>(&area);
    if (!view || steps == 0 || bar->value() != bar->minimum())
        return steps;
    const bool isDown = orientation == Qt::Vertical;
    const QAbstractItemView::ScrollMode mode = isDown ? view->verticalScrollMode() : view->horizontalScrollMode();
    if (mode != QAbstractItemView::ScrollPerItem)
        return steps;
    const QRect last = view->visualRect(lastEntry(*view));
    return isDown ? last.bottom() + 1 - view->viewport()->height() : last.right() + 1 - view->viewport()->width();
}

/// Scroll bars that show in a window though everything could be seen without them: where nothing is hidden, where only the
/// other bar takes the room, or where no more than an edge would be cut. A line each.
inline QStringList needlessScrollBars(const QWidget &window)
{
    QStringList found;
    settleLayouts();
    const auto areas = window.findChildren<QAbstractScrollArea *>();
    for (QAbstractScrollArea *area : areas) {
        if (!area->isVisible() || qobject_cast<QHeaderView *>(area))
            continue;
        const bool shows[] = {area->horizontalScrollBar()->isVisible(), area->verticalScrollBar()->isVisible()};
        if (!shows[0] && !shows[1])
            continue;
        const Qt::ScrollBarPolicy across = area->horizontalScrollBarPolicy();
        const Qt::ScrollBarPolicy down = area->verticalScrollBarPolicy();
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        settleLayouts();
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const int hidden = hiddenPart(*area, orientation);
            if (shows[orientation == Qt::Vertical] && hidden <= unseenEdge) {
                found.append(
                    QStringLiteral("%1 of %2 has a %3 bar for %4")
                        .arg(area->objectName(), window.objectName(),
                             orientation == Qt::Vertical ? QStringLiteral("vertical") : QStringLiteral("horizontal"))
                        .arg(hidden));
            }
        }
        area->setHorizontalScrollBarPolicy(across);
        area->setVerticalScrollBarPolicy(down);
        settleLayouts();
    }
    return found;
}

} // namespace zephira

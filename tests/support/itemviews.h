// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QTest>

namespace zephira {

/// Double-clicks an item of a list or tree with the mouse, after scrolling to it.
inline void doubleClickItem(QAbstractItemView &view, const QModelIndex &index)
{
    QVERIFY(index.isValid());
    view.scrollTo(index);
    const QPoint place = view.visualRect(index).intersected(view.viewport()->rect()).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

/// The same with the first top-level item with the given text.
inline void doubleClickItem(QAbstractItemView &view, const QString &text)
{
    const QModelIndexList found = view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                                      Qt::MatchExactly | Qt::MatchCaseSensitive);
    QVERIFY2(!found.isEmpty(), qPrintable(text));
    doubleClickItem(view, found.first());
}

} // namespace zephira

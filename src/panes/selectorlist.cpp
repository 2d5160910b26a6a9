// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/selectorlist.h"

#include "core/pasteitem.h"
#include "widgets/itemchoice.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace zephira {

SelectorList::SelectorList(const AppContext &context, QWidget *parent) : QListWidget(parent)
{
    setObjectName(u"List1"_s);
    setAccessibleName(u"Style selectors"_s);
    setToolTip(u"Style selectors"_s);
    setUniformItemSizes(true);
    onItemChosen(*this, this, [this, &context](const QModelIndex &index) {
        pasteBehindSelection(context, index.data().toString());
        Q_EMIT finished();
    });
}

void SelectorList::focusOutEvent(QFocusEvent *event)
{
    QListWidget::focusOutEvent(event);
    Q_EMIT finished();
}

void SelectorList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT finished();
    else
        QListWidget::keyPressEvent(event);
}

} // namespace zephira

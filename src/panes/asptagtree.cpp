// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/asptagtree.h"

#include "core/pasteitem.h"
#include "widgets/itemchoice.h"

using namespace Qt::StringLiterals;

namespace zephira {

AspTagTree::AspTagTree(const AppContext &context, QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(u"asptags"_s);
    setAccessibleName(u"ASP Codes / Tags"_s);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    onItemChosen(*this, this,
                 [&context](const QModelIndex &index) { pasteInCodeView(context, index.data().toString()); });
}

void AspTagTree::addLines(const QStringList &lines)
{
    QList<QTreeWidgetItem *> nodes;
    for (const QString &line : lines)
        nodes.append(new QTreeWidgetItem(QStringList(line)));
    addTopLevelItems(nodes);
}

} // namespace zephira

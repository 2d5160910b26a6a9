// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/ihtmltaglist.h"

#include "core/pasteitem.h"
#include "panes/ihtmltags.h"
#include "widgets/itemchoice.h"

using namespace Qt::StringLiterals;

namespace zephira {

IhtmlTagList::IhtmlTagList(const AppContext &context, QWidget *parent) : QListWidget(parent)
{
    setObjectName(u"ihtmltags"_s);
    setAccessibleName(u"IHTML Tags"_s);
    setUniformItemSizes(true);
    for (const QStringView tag : ihtmlTags())
        addItem(tag.toString());
    onItemChosen(*this, this,
                 [&context](const QModelIndex &index) { pasteInCodeView(context, index.data().toString()); });
}

} // namespace zephira

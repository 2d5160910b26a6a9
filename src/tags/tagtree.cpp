// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/tagtree.h"

#include "core/appcontext.h"
#include "core/itemroles.h"
#include "core/pasteitem.h"
#include "files/textlines.h"
#include "tags/builtintags.h"
#include "tags/tagfile.h"
#include "widgets/itemchoice.h"
#include "widgets/themeicon.h"

#include <QIcon>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QTreeWidgetItem *node(const QString &caption, const QIcon &picture)
{
    auto *item = new QTreeWidgetItem(QStringList(caption));
    item->setIcon(0, picture);
    return item;
}

} // namespace

TagTree::TagTree(const AppContext &context, QWidget *parent) : QTreeWidget(parent), m_context(context)
{
    setObjectName(u"TRV"_s);
    setAccessibleName(u"HTML Tags"_s);
    setHeaderHidden(true);
    onItemChosen(*this, this,
                 [this](const QModelIndex &index) { pasteInCodeView(m_context, index.data().toString()); });
}

Result<QStringList> TagTree::fileCaptions(const AppContext &context)
{
    const Result<QStringList> lines = readLines(context.files, context.appPath + u"/tags.dat"_s);
    if (!lines)
        return lines.error();
    return tagCaptions(lines.value());
}

Result<void> TagTree::LoadTagTree()
{
    const Result<QStringList> captions = fileCaptions(m_context);
    if (!captions)
        return captions.error();
    addTags(captions.value());
    return {};
}

void TagTree::addTags(const QStringList &captions)
{
    const QIcon tagPicture = themeIcon(u"tag"_s);
    const QIcon attributePicture = themeIcon(u"code-variable"_s);
    QList<QTreeWidgetItem *> nodes;
    for (const QString &caption : captions)
        nodes.append(node(caption, tagPicture));
    for (const BuiltInTag &tag : builtInTags()) {
        QTreeWidgetItem *item = node(tag.caption.toString(), tagPicture);
        item->setData(0, KeyRole, tag.key.toString());
        const QStringList attributes = attributeCaptions(tag);
        for (const QString &attribute : attributes)
            item->addChild(node(attribute, attributePicture));
        nodes.append(item);
    }
    addTopLevelItems(nodes);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sotloader.h"

#include "files/textlines.h"
#include "panes/sottree.h"

#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace zephira {

Result<void> LoadSotTree(const FileStore &files, const QString &filePath, QTreeWidget &tree)
{
    const Result<QStringList> lines = readLines(files, filePath);
    if (!lines)
        return lines.error();
    tree.clear();
    const SotTree content = parseSotTree(lines.value());
    std::vector<QTreeWidgetItem *> items;
    QList<QTreeWidgetItem *> roots;
    for (const SotTree::Node &node : content.nodes) {
        items.push_back(new QTreeWidgetItem(QStringList(node.caption)));
        if (node.parent < 0)
            roots.append(items.back());
        else
            items[static_cast<std::size_t>(node.parent)]->addChild(items.back());
    }
    tree.addTopLevelItems(roots);
    if (content.faultyLine == 0)
        return {};
    return Error{Error::Code::Malformed,
                 u"The file \"%1\" was not read to its end: line %2 is indented too far."_s.arg(
                     filePath, QString::number(content.faultyLine))};
}

} // namespace zephira

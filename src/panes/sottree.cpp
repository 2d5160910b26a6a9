// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/sottree.h"

#include <algorithm>

namespace zephira {

SotTree parseSotTree(const QStringList &lines)
{
    SotTree tree;
    // The last node of each depth. There are no gaps between depths, because a node is only accepted with its parent.
    std::vector<qsizetype> lastAt;
    for (const QString &line : lines) {
        const auto text = std::ranges::find_if(line, [](QChar c) { return c != u'\t'; });
        const auto depth = static_cast<std::size_t>(text - line.begin());
        const auto node = static_cast<qsizetype>(tree.nodes.size());
        if (depth > lastAt.size()) {
            tree.faultyLine = node + 1;
            break;
        }
        if (depth == lastAt.size())
            lastAt.push_back(node);
        else
            lastAt[depth] = node;
        tree.nodes.push_back({line.sliced(text - line.begin()), depth == 0 ? -1 : lastAt[depth - 1]});
    }
    return tree;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace zephira {

/// The tree in a .sot file.
struct SotTree {
    struct Node {
        QString caption;
        /// Index of the parent node, which comes earlier in the list; -1 for a root.
        qsizetype parent = -1;

        friend bool operator==(const Node &, const Node &) = default;
    };

    std::vector<Node> nodes;
    /// The line, counted from 1, at which reading ended because it has no parent; 0 if all lines were read.
    qsizetype faultyLine = 0;
};

/// Reads the lines of a .sot file. Each line is a node whose depth is the number of tabs at its start. Its parent is
/// the last node that is one level less deep, even if that belongs to an earlier branch. A line without such a parent
/// ends the tree.
///
///     document
///     <tab>body           goes under "document"
///     window              is a root again
///     <tab><tab>focus()   goes under "body"
SotTree parseSotTree(const QStringList &lines);

} // namespace zephira

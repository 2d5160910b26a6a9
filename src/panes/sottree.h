// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace zephira {

/// A tree as it stands in a .sot file.
struct SotTree {
    struct Node {
        QString caption;
        /// Index of the node above, which comes earlier in the list; -1 for a root.
        qsizetype parent = -1;

        friend bool operator==(const Node &, const Node &) = default;
    };

    std::vector<Node> nodes;
    /// The line, counted from 1, at which reading ended because nothing stands above it; 0 if all lines were read.
    qsizetype faultyLine = 0;
};

/// Reads the lines of a .sot file. Each line is a node, as deep as it has tabs at its start: it goes under the last node
/// that was one less deep, also where that one is of an earlier branch. A line for which there has been no such node ends
/// the tree.
///
///     document
///     <tab>body           goes under "document"
///     window              is a root again
///     <tab><tab>focus()   goes under "body"
SotTree parseSotTree(const QStringList &lines);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QTreeWidget>

namespace zephira {

struct AppContext;

/// The tree of tags in the side pane: the lines of tags.dat, then the built-in tags with their attributes. A double click
/// pastes a node's caption after the selection; attributes are pasted one by one into a tag.
class TagTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TagTree(const AppContext &context, QWidget *parent = nullptr);

    /// Adds the nodes of both sources to the tree, which is to be empty. Fails and adds nothing where tags.dat can't be
    /// read; an empty one is no failure.
    Result<void> LoadTagTree();

private:
    const AppContext &m_context;
};

} // namespace zephira

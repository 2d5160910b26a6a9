// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QTreeWidget>

namespace zephira {

struct AppContext;

/// The tree of tags in the side pane: the lines of tags.dat, then the built-in tags with their attributes. A double
/// click inserts a node's caption after the selection; attributes are inserted into a tag one by one.
class TagTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TagTree(const AppContext &context, QWidget *parent = nullptr);

    /// The captions in tags.dat of the program folder. Fails if it can't be read.
    static Result<QStringList> fileCaptions(const AppContext &context);
    /// Adds a node for each of these captions, and those of the built-in tags.
    void addTags(const QStringList &captions);
    /// Adds the nodes of both sources to the tree, which must be empty. If tags.dat can't be read, fails and adds
    /// nothing; an empty file is no failure.
    Result<void> LoadTagTree();

private:
    const AppContext &m_context;
};

} // namespace zephira

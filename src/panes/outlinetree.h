// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

class QAction;

namespace zephira {

class OutlineModel;

/// The document tree, `TreeView1`: the result of the last ParseOutline(). It doesn't follow later changes of the text,
/// and a click only selects a node.
class OutlineTree : public QTreeView
{
    Q_OBJECT

public:
    explicit OutlineTree(QWidget *parent = nullptr);

    /// Rebuilds the tree from a page's text, with its four upper nodes open and the root selected; does nothing if
    /// `skip` is set. An error of the scan is passed on: the tree then has the leaves found before it, and all nodes
    /// are closed.
    Q_INVOKABLE void ParseOutline(const QString &documentText, bool skip);

Q_SIGNALS:
    /// The user wants to see a tag in the text. `tagText` is the text between `<` and `>`, `position` the 0-based index
    /// that its `<` had when the outline was made.
    void goToTag(const QString &tagText, qsizetype position);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    OutlineModel *m_model;
    QAction *m_goToTag;
};

} // namespace zephira

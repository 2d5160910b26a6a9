// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTreeView>

class QAction;

namespace zephira {

class OutlineModel;

/// The document tree, `TreeView1`: what the last ParseOutline() found. It doesn't follow later changes of the text, and a
/// click selects a node and does nothing else.
class OutlineTree : public QTreeView
{
    Q_OBJECT

public:
    explicit OutlineTree(QWidget *parent = nullptr);

    /// Builds the tree anew from a page's text, with its four upper nodes open and the root selected; `skip` leaves
    /// everything as it is. An error of the scan passes through: the tree then holds the leaves found before, all closed.
    Q_INVOKABLE void ParseOutline(const QString &documentText, bool skip);

Q_SIGNALS:
    /// The user wants to see a tag in the text. `tagText` is what stands between `<` and `>`, `position` the 0-based index
    /// that its `<` had when the outline was made.
    void goToTag(const QString &tagText, qsizetype position);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    OutlineModel *m_model;
    QAction *m_goToTag;
};

} // namespace zephira

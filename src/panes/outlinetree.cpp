// SPDX-License-Identifier: GPL-3.0-or-later
#include "panes/outlinetree.h"

#include "panes/outlinemodel.h"

#include <QAction>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A caption may be a whole script. Only one line of it is painted; the item keeps the full text.
class OneLine final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        constexpr qsizetype longestShown = 300;
        return value.toString().left(longestShown).simplified();
    }
};

} // namespace

OutlineTree::OutlineTree(QWidget *parent)
    : QTreeView(parent), m_model(new OutlineModel(this)), m_goToTag(new QAction(tr("Go to Tag"), this))
{
    setObjectName(u"TreeView1"_s);
    setAccessibleName(u"Document Tree"_s);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setItemDelegate(new OneLine(this));
    setModel(m_model);

    m_goToTag->setObjectName(u"goToTag"_s);
    m_goToTag->setStatusTip(tr("Select the tag in the text"));
    m_goToTag->setEnabled(false);
    addAction(m_goToTag);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_goToTag, &QAction::triggered, this, [this] {
        const QModelIndex leaf = currentIndex();
        Q_EMIT goToTag(leaf.data(TagRole).toString(), leaf.data(OutlineModel::PositionRole).toLongLong());
    });
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex &node) {
        // If a node opens because one of its leaves was selected, the leaf stays selected.
        if (currentIndex().parent() != node)
            setCurrentIndex(node);
    });
    connect(this, &QTreeView::collapsed, this, &OutlineTree::setCurrentIndex);
}

void OutlineTree::ParseOutline(const QString &documentText, bool skip)
{
    if (skip)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    m_model->parse(documentText);
    using enum OutlineGroup;
    for (const OutlineGroup group : {Main, Document, Declare, Title})
        expand(m_model->groupIndex(group));
    setCurrentIndex(m_model->groupIndex(Main));
}

void OutlineTree::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    // Opening the leaf's parent may have changed the selection.
    m_goToTag->setEnabled(m_model->isLeaf(currentIndex()));
}

} // namespace zephira

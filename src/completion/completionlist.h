// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/proposals.h"
#include "core/fuzzymatch.h"

#include <QAbstractListModel>

#include <vector>

namespace zephira {

/// The proposals that fit what was typed, the best first. What is shown beside each is its ToolTipRole.
class CompletionList final : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setProposals(const QList<Proposal> &proposals);
    /// Shows those that have the characters of `typed` in their order; all of them if nothing was typed.
    void filter(const QString &typed);
    const Proposal &at(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QList<Proposal> m_proposals;
    std::vector<FuzzyText> m_texts;
    /// The indices of the proposals that are shown.
    std::vector<qsizetype> m_rows;
};

} // namespace zephira

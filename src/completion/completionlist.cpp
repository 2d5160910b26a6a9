// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/completionlist.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// For an entry that begins as typed, with the same case: it comes before one that only differs in case.
constexpr int sameCase = 4;
/// What is obsolete comes behind what fits nearly as well.
constexpr int outOfUse = 30;

struct Ranked {
    int score = 0;
    int weight = 0;
    qsizetype index = 0;
};

} // namespace

void CompletionList::setProposals(const QList<Proposal> &proposals)
{
    beginResetModel();
    m_proposals = proposals;
    m_texts.clear();
    m_texts.reserve(static_cast<std::size_t>(proposals.size()));
    for (const Proposal &proposal : proposals)
        m_texts.emplace_back(proposal.text);
    m_rows.resize(m_texts.size());
    std::iota(m_rows.begin(), m_rows.end(), 0);
    endResetModel();
}

void CompletionList::filter(const QString &typed)
{
    const FuzzyPattern pattern(typed);
    std::vector<Ranked> found;
    for (qsizetype i = 0; i < m_proposals.size(); ++i) {
        const Proposal &proposal = m_proposals[i];
        if (pattern.isEmpty()) {
            found.push_back({.index = i});
        } else if (const auto match = pattern.match(m_texts[static_cast<std::size_t>(i)])) {
            const int bonus = proposal.text.startsWith(typed) ? sameCase : 0;
            found.push_back({match->score + bonus - (proposal.weight == 0 ? outOfUse : 0), proposal.weight, i});
        }
    }
    if (!pattern.isEmpty()) {
        std::ranges::stable_sort(found, [](const Ranked &a, const Ranked &b) {
            return a.score != b.score ? a.score > b.score : a.weight > b.weight;
        });
    }
    beginResetModel();
    m_rows.resize(found.size());
    std::ranges::transform(found, m_rows.begin(), &Ranked::index);
    endResetModel();
}

const Proposal &CompletionList::at(int row) const
{
    return m_proposals[m_rows[static_cast<std::size_t>(row)]];
}

int CompletionList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CompletionList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Proposal &proposal = at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return proposal.text;
    case Qt::ToolTipRole:
        return proposal.note;
    case Qt::AccessibleTextRole:
        return proposal.note.isEmpty() ? proposal.text : proposal.text + u", "_s + proposal.note;
    case Qt::AccessibleDescriptionRole:
        return proposal.row ? QString::fromUtf8(proposal.row->text) : QString();
    default:
        return {};
    }
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commandsearch.h"

#include <QStringBuilder>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// What a character counts that was found in place or tip: less than one in the caption that follows another.
constexpr int inTheRest = 14;
/// What else a command is called counts a little less than its caption.
constexpr int byAnotherName = 4;
/// Each use counts, up to a number of them.
constexpr int perUse = 2;
constexpr int mostUses = 12;

/// The words of a text, folded, with one blank before each.
QString words(const QString &text)
{
    QString result;
    bool isInWord = false;
    const QString folded = FuzzyText(text).folded();
    for (const QChar c : folded) {
        const bool isPart = !c.isSpace();
        if (isPart && !isInWord)
            result += u' ';
        isInWord = isPart;
        if (isPart)
            result += c;
    }
    return result;
}

constexpr int never = std::numeric_limits<int>::min();

struct Best {
    int score = never;
    QList<qsizetype> places;
};

} // namespace

CommandSearch::CommandSearch(std::span<const ListedCommand> commands)
{
    m_entries.reserve(commands.size());
    for (const ListedCommand &command : commands) {
        Entry entry{FuzzyText(command.caption), {}, words(command.place) + words(command.tip)};
        for (const QString &other : command.others)
            entry.others.emplace_back(other);
        m_entries.push_back(std::move(entry));
    }
}

std::vector<CommandSearch::Found> CommandSearch::find(const QString &typed, std::span<const int> uses) const
{
    const FuzzyPattern pattern(typed);
    const auto bestOf = [](const QString &word, const Entry &entry) {
        Best best;
        if (const std::optional<FuzzyMatch> match = matchWord(word, entry.caption))
            best = {match->score, match->places};
        for (const FuzzyText &other : entry.others) {
            const std::optional<FuzzyMatch> match = matchWord(word, other);
            if (match && match->score - byAnotherName > best.score)
                best = {match->score - byAnotherName, {}};
        }
        const int inRest = inTheRest * static_cast<int>(word.size());
        if (inRest > best.score && entry.rest.contains(QString(u' ' % word)))
            best = {inRest, {}};
        return best;
    };

    std::vector<Found> found;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        Found each{static_cast<int>(i), perUse * std::min(uses[i], mostUses), {}};
        const bool isWhole = std::ranges::all_of(pattern.words(), [&](const QString &word) {
            const Best best = bestOf(word, m_entries[i]);
            if (best.score == never)
                return false;
            each.score += best.score;
            each.places.append(best.places);
            return true;
        });
        if (!isWhole)
            continue;
        std::ranges::sort(each.places);
        const auto doubles = std::ranges::unique(each.places);
        each.places.erase(doubles.begin(), doubles.end());
        found.push_back(std::move(each));
    }
    const bool byUse = pattern.isEmpty();
    std::ranges::stable_sort(found, [&](const Found &a, const Found &b) {
        const int usesOfA = uses[static_cast<std::size_t>(a.command)];
        const int usesOfB = uses[static_cast<std::size_t>(b.command)];
        return byUse || a.score == b.score ? usesOfA > usesOfB : a.score > b.score;
    });
    return found;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/fuzzymatch.h"

#include <algorithm>
#include <limits>

namespace zephira {

namespace {

constexpr qsizetype longestText = 256;
constexpr qsizetype longestWord = 64;

constexpr int matched = 16;
constexpr int atTextStart = 24;
constexpr int atWordStart = 18;
constexpr int atPartStart = 14;
constexpr int inSequence = 22;
/// For each character that lies between two that match, up to a limit: far is far.
constexpr int gap = 1;
constexpr int widestGap = 12;
/// For the characters before the first match.
constexpr int lateStart = 8;
/// Stands for no match; sums with it stay below `worst`, which no match falls short of.
constexpr int never = std::numeric_limits<int>::min() / 2;
constexpr int worst = never / 2;

/// A character without case and accents.
QChar folded(QChar c)
{
    if (c.unicode() < 0x80)
        return c.toLower();
    if (c.decompositionTag() == QChar::Canonical) {
        if (const QString parts = c.decomposition(); !parts.isEmpty())
            return parts.front().toCaseFolded();
    }
    return c.toCaseFolded();
}

QString folded(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(), [](QChar c) { return folded(c); });
    return result;
}

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c.isSurrogate();
}

int bonusAt(QStringView text, qsizetype at)
{
    const QChar here = text[at];
    if (at == 0)
        return atTextStart;
    const QChar before = text[at - 1];
    if (before.isSpace())
        return atWordStart;
    const bool isPart = isWordPart(here)
        ? !isWordPart(before) || (here.isUpper() && before.isLower()) || (here.isDigit() && !before.isDigit())
        : isWordPart(before);
    return isPart ? atPartStart : 0;
}

/// Whether the word's characters are in the text at all, in their order.
bool occurs(QStringView word, QStringView text)
{
    qsizetype at = 0;
    for (const QChar c : word) {
        at = text.indexOf(c, at);
        if (at < 0)
            return false;
        ++at;
    }
    return true;
}

/// The best match that ends before a gap, less what the gap costs.
struct Gap {
    int score = never;
    qsizetype from = -1;

    void widen(const Gap &other)
    {
        if (other.score >= score)
            *this = other;
    }
};

} // namespace

FuzzyText::FuzzyText(QStringView text) : m_folded(zephira::folded(text.first(std::min(text.size(), longestText))))
{
    m_bonus.reserve(static_cast<std::size_t>(m_folded.size()));
    for (qsizetype at = 0; at < m_folded.size(); ++at)
        m_bonus.push_back(static_cast<unsigned char>(bonusAt(text, at)));
}

FuzzyPattern::FuzzyPattern(QStringView typed)
{
    const QList<QStringView> words = typed.split(u' ', Qt::SkipEmptyParts);
    for (const QStringView word : words)
        m_words.append(folded(word));
}

std::optional<FuzzyMatch> FuzzyPattern::match(const FuzzyText &text) const
{
    FuzzyMatch all;
    for (const QString &word : m_words) {
        const std::optional<FuzzyMatch> found = matchWord(word, text);
        if (!found)
            return std::nullopt;
        all.score += found->score;
        all.places.append(found->places);
    }
    std::ranges::sort(all.places);
    const auto doubles = std::ranges::unique(all.places);
    all.places.erase(doubles.begin(), doubles.end());
    return all;
}

std::optional<FuzzyMatch> matchWord(QStringView word, const FuzzyText &text)
{
    const QStringView haystack = text.folded();
    if (word.isEmpty())
        return FuzzyMatch{};
    if (word.size() > longestWord || !occurs(word, haystack))
        return std::nullopt;

    // For each pair of a character of the word and one of the text: the best score of a match that ends there, and the
    // place of the word's character before.
    const auto width = static_cast<std::size_t>(haystack.size());
    std::vector<int> before(width, never);
    std::vector<int> now(width, never);
    std::vector<short> cameFrom(width * static_cast<std::size_t>(word.size()), -1);
    for (qsizetype row = 0; row < word.size(); ++row) {
        std::ranges::fill(now, never);
        Gap near;
        Gap far;
        for (qsizetype at = row; at < haystack.size(); ++at) {
            const auto i = static_cast<std::size_t>(at);
            if (row > 0 && at > 1) {
                near.score -= gap;
                near.widen({before[i - 2] - gap, at - 2});
                far.widen({before[i - 2] - widestGap, at - 2});
            }
            if (haystack[at] != word[row])
                continue;
            const int start = text.startBonus(at);
            if (row == 0) {
                now[i] = matched + start - static_cast<int>(std::min<qsizetype>(at, lateStart));
                continue;
            }
            const Gap &jump = near.score >= far.score ? near : far;
            const int jumped = jump.score + start;
            const int followed = at > 0 ? before[i - 1] + std::max(inSequence, start) : never;
            if (std::max(jumped, followed) < worst)
                continue;
            now[i] = matched + std::max(jumped, followed);
            cameFrom[static_cast<std::size_t>(row) * width + i] =
                static_cast<short>(followed >= jumped ? at - 1 : jump.from);
        }
        before.swap(now);
    }

    const auto end = std::ranges::max_element(before);
    if (*end < worst)
        return std::nullopt;
    FuzzyMatch match{*end, QList<qsizetype>(word.size())};
    // Of equally good matches the shorter text fits better.
    match.score -= static_cast<int>(std::min<qsizetype>(haystack.size() / 8, widestGap));
    qsizetype at = end - before.begin();
    for (qsizetype row = word.size() - 1; row >= 0; --row) {
        match.places[row] = at;
        at = cameFrom[static_cast<std::size_t>(row) * width + static_cast<std::size_t>(at)];
    }
    return match;
}

} // namespace zephira

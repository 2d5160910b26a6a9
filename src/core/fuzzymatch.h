// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <vector>

namespace zephira {

/// A text prepared for being searched many times. Case and accents don't matter in a search. Only the first 256 characters
/// are searched.
class FuzzyText
{
public:
    explicit FuzzyText(QStringView text = {});

    qsizetype size() const { return m_folded.size(); }
    const QString &folded() const { return m_folded; }
    /// How well a match may begin at a character: at the start of the text, of a word or of a part of a word best.
    int startBonus(qsizetype at) const { return m_bonus[static_cast<std::size_t>(at)]; }

private:
    QString m_folded;
    std::vector<unsigned char> m_bonus;
};

struct FuzzyMatch {
    /// The higher the better; comparable between texts for the same pattern.
    int score = 0;
    /// The indices of the characters that matched, in ascending order.
    QList<qsizetype> places;

    friend bool operator==(const FuzzyMatch &, const FuzzyMatch &) = default;
};

/// What was typed to search for: words, divided by blanks.
class FuzzyPattern
{
public:
    explicit FuzzyPattern(QStringView typed = {});

    bool isEmpty() const { return m_words.isEmpty(); }
    const QStringList &words() const { return m_words; }

    /// Finds each word's characters in the text, in their order, though not necessarily one behind the other; the words may
    /// come in any order. Starts of words and characters that follow one another count most, so "tw" finds "Table Wizard"
    /// before "Network". An empty pattern matches every text with a score of 0.
    std::optional<FuzzyMatch> match(const FuzzyText &text) const;

private:
    QStringList m_words;
};

/// The best match of a single word, without blanks, that is folded as FuzzyText does.
std::optional<FuzzyMatch> matchWord(QStringView word, const FuzzyText &text);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <bitset>

namespace zephira {

/// How an author spells characters: a character that was always spelled as a reference is written so again, and one
/// that never was is written as it is. Text and attribute values are learnt separately, because a quotation mark has to
/// be spelled in one and not in the other.
class EntityHabits
{
public:
    enum class Place { Text, Value };

    explicit EntityHabits(Place place) : m_place(place) {}

    /// Learns from the text or the values in a page's source.
    void learn(QStringView source);
    /// In XML a value must not contain "<", and only few character names are known.
    void setXml(bool isXml) { m_isXml = isXml; }

    /// The progress of writing a whole page.
    class Progress
    {
        friend EntityHabits;
        QHash<char32_t, qsizetype> expected;
        QHash<char32_t, qsizetype> written;
    };
    /// Counts characters that are going to be written.
    void expect(QStringView characters, Progress &progress) const;

    /// The characters as they are written in the source. Characters that would end the text, or be read as a reference,
    /// are always spelled; line ends are LF in `characters` and CR LF in the result. Given the progress of a whole
    /// page, characters that the author spelled inconsistently are spelled the same way again in their order, as long
    /// as none of them was added or removed.
    QString write(QStringView characters, Progress *progress = nullptr) const;

private:
    struct Habit {
        /// The first spelling; empty until one occurs.
        QString spelling;
        bool seenPlain = false;
        /// All spellings in order, empty where the character wasn't spelled; not kept for ASCII.
        QStringList all = {};
    };

    QString spellingOf(char32_t character, Progress *progress) const;

    Place m_place;
    bool m_isXml = false;
    /// By character; ASCII characters are included only if they have been spelled.
    QHash<char32_t, Habit> m_habits;
    std::bitset<128> m_plainAscii;
};

/// Replaces the engine's own spellings ("&amp;", "&lt;", "&gt;", "&quot;", "&nbsp;") by their characters.
QString readEngineText(QStringView serialised);

} // namespace zephira

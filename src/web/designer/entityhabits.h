// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <bitset>

namespace zephira {

/// How an author spells characters: those that were spelled as a reference wherever they occur are written so again,
/// and those that were not are written as they are. Text and attribute values are learnt apart, because a quotation
/// mark has to be spelled in the one and not in the other.
class EntityHabits
{
public:
    enum class Place { Text, Value };

    explicit EntityHabits(Place place) : m_place(place) {}

    /// Looks at characters of a page's source.
    void learn(QStringView source);
    /// In XML a value holds no "<", and few names of characters are known.
    void setXml(bool isXml) { m_isXml = isXml; }

    /// How far the writing of a whole page has come.
    class Progress
    {
        friend EntityHabits;
        QHash<char32_t, qsizetype> expected;
        QHash<char32_t, qsizetype> written;
    };
    /// Takes note of characters that are going to be written.
    void expect(QStringView characters, Progress &progress) const;

    /// Characters of a page as they stand in its source. What would end the text, or be read as a reference, is spelled
    /// in any case; line ends are LF before and CR LF behind. With the progress of a whole page, characters that the author
    /// spelled now this way, now that are spelled so again, in their order, as long as none of them has come or gone.
    QString write(QStringView characters, Progress *progress = nullptr) const;

private:
    struct Habit {
        /// The first spelling; empty as long as there was none.
        QString spelling;
        bool seenPlain = false;
        /// All spellings in their order, empty ones where it wasn't spelled; not of ASCII.
        QStringList all = {};
    };

    QString spellingOf(char32_t character, Progress *progress) const;

    Place m_place;
    bool m_isXml = false;
    /// By character; those of ASCII are here only when they have been spelled.
    QHash<char32_t, Habit> m_habits;
    std::bitset<128> m_plainAscii;
};

/// Characters with the engine's own spelling ("&amp;", "&lt;", "&gt;", "&quot;", "&nbsp;") read.
QString readEngineText(QStringView serialised);

} // namespace zephira

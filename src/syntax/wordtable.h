// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <array>
#include <vector>

namespace zephira {

/// A map from byte strings to numbers from 1 to 255, optimised for lookup. The caller computes the hash while reading
/// the word: begin with 0 and call step() for each byte.
class WordTable
{
public:
    /// If not case-sensitive, the letters A to Z equal a to z.
    explicit WordTable(bool caseSensitive = true);

    /// Adds a word. A word that is already there keeps its value.
    void add(QByteArrayView word, unsigned char value);
    /// Adds bits to a word's number; a missing word is added.
    void merge(QByteArrayView word, unsigned char bits);
    bool isEmpty() const { return m_entries.empty(); }

    quint32 step(quint32 hash, unsigned char byte) const { return (hash << 5) + hash + m_fold[byte]; }
    /// The word's number, or 0.
    unsigned char find(const unsigned char *word, std::size_t length, quint32 hash) const
    {
        const std::size_t index = m_entries.empty() ? 0 : indexOf(word, length, hash);
        return index == 0 ? static_cast<unsigned char>(0) : m_entries[index - 1].value;
    }
    unsigned char find(QByteArrayView word) const;

private:
    struct Entry {
        quint32 hash;
        quint32 offset;
        quint32 length;
        unsigned char value;
    };

    /// The entry's index plus 1, or 0. The table isn't empty.
    std::size_t indexOf(const unsigned char *word, std::size_t length, quint32 hash) const
    {
        for (std::size_t slot = slotOf(hash); m_slots[slot] != 0; slot = (slot + 1) & (m_slots.size() - 1)) {
            const Entry &entry = m_entries[m_slots[slot] - 1];
            if (entry.hash == hash && entry.length == length && equals(entry, word))
                return m_slots[slot];
        }
        return 0;
    }
    std::size_t slotOf(quint32 hash) const { return (hash * 0x9E3779B1u) >> m_shift; }
    bool equals(const Entry &entry, const unsigned char *word) const;
    quint32 hashOf(QByteArrayView word) const;
    void place(std::size_t index);

    std::array<unsigned char, 256> m_fold;
    std::vector<Entry> m_entries;
    std::vector<quint32> m_slots; ///< 0 for a free slot, otherwise the entry's index plus 1
    QByteArray m_words;
    unsigned m_shift = 32;
};

} // namespace zephira

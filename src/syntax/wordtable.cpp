// SPDX-License-Identifier: GPL-3.0-or-later
#include "syntax/wordtable.h"

#include <algorithm>
#include <bit>

namespace zephira {

namespace {

constexpr std::size_t smallestTable = 16;

const unsigned char *unsignedBytes(QByteArrayView view)
{
    return reinterpret_cast<const unsigned char *>(view.data());
}

} // namespace

WordTable::WordTable(bool caseSensitive)
{
    for (unsigned byte = 0; byte < 256; ++byte) {
        const bool fold = !caseSensitive && byte >= 'A' && byte <= 'Z';
        m_fold[byte] = static_cast<unsigned char>(fold ? byte + 32 : byte);
    }
}

void WordTable::add(QByteArrayView word, unsigned char value)
{
    if (find(word) == 0)
        merge(word, value);
}

void WordTable::merge(QByteArrayView word, unsigned char bits)
{
    const quint32 hash = hashOf(word);
    const std::size_t size = static_cast<std::size_t>(word.size());
    if (const std::size_t index = m_entries.empty() ? 0 : indexOf(unsignedBytes(word), size, hash)) {
        m_entries[index - 1].value |= bits;
        return;
    }
    m_entries.push_back({hash, static_cast<quint32>(m_words.size()), static_cast<quint32>(size), bits});
    for (const char byte : word)
        m_words.append(static_cast<char>(m_fold[static_cast<unsigned char>(byte)]));
    // At most a quarter full: most lookups are for missing words, which should fail at the first slot.
    if (m_slots.size() >= m_entries.size() * 4)
        return place(m_entries.size() - 1);
    m_slots.assign(std::max(smallestTable, std::bit_ceil(m_entries.size() * 8)), 0);
    m_shift = 32u - static_cast<unsigned>(std::countr_zero(m_slots.size()));
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        place(i);
}

unsigned char WordTable::find(QByteArrayView word) const
{
    return find(unsignedBytes(word), static_cast<std::size_t>(word.size()), hashOf(word));
}

quint32 WordTable::hashOf(QByteArrayView word) const
{
    quint32 hash = 0;
    for (const char byte : word)
        hash = step(hash, static_cast<unsigned char>(byte));
    return hash;
}

bool WordTable::equals(const Entry &entry, const unsigned char *word) const
{
    const unsigned char *own = unsignedBytes(m_words) + entry.offset;
    for (quint32 i = 0; i < entry.length; ++i) {
        if (own[i] != m_fold[word[i]])
            return false;
    }
    return true;
}

void WordTable::place(std::size_t index)
{
    std::size_t slot = slotOf(m_entries[index].hash);
    while (m_slots[slot] != 0)
        slot = (slot + 1) & (m_slots.size() - 1);
    m_slots[slot] = static_cast<quint32>(index + 1);
}

} // namespace zephira

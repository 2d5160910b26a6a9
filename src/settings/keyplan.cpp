// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/keyplan.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace zephira {

bool isFound(const QString &search, const QString &caption, const QString &shownKeys)
{
    const QStringList words = search.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(words, [&](const QString &word) {
        return caption.contains(word, Qt::CaseInsensitive) || shownKeys.contains(word, Qt::CaseInsensitive);
    });
}

KeyPlan::KeyPlan(std::vector<CommandKey> commands, std::vector<OtherKey> others)
    : m_commands(std::move(commands)), m_saved(m_commands), m_others(std::move(others))
{}

std::optional<std::size_t> KeyPlan::holder(std::size_t row, const QString &keys) const
{
    for (std::size_t i = 0; i < m_commands.size(); ++i) {
        if (i != row && !keys.isEmpty() && m_commands[i].keys == keys)
            return i;
    }
    return std::nullopt;
}

KeyClash KeyPlan::clash(std::size_t row, const QString &keys) const
{
    if (const auto other = holder(row, keys))
        return {.command = other};
    const auto use = std::ranges::find(m_others, keys, &OtherKey::keys);
    return keys == m_commands[row].shipped || use == m_others.end() ? KeyClash{} : KeyClash{.other = *use};
}

std::optional<std::size_t> KeyPlan::set(std::size_t row, const QString &keys)
{
    const auto other = holder(row, keys);
    if (other)
        m_commands[*other].keys.clear();
    m_commands[row].keys = keys;
    return other;
}

void KeyPlan::resetAll()
{
    for (CommandKey &command : m_commands)
        command.keys = command.shipped;
}

std::vector<KeyChange> KeyPlan::changes() const
{
    std::vector<KeyChange> changes;
    for (std::size_t i = 0; i < m_commands.size(); ++i) {
        if (m_commands[i].keys != m_saved[i].keys)
            changes.push_back({m_commands[i].name, m_commands[i].keys});
    }
    return changes;
}

} // namespace zephira

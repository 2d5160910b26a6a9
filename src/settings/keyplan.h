// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/commandkeys.h"

#include <QString>

#include <optional>
#include <vector>

namespace zephira {

/// What keys are used for already.
struct KeyClash {
    /// The command that has them, by its place in the plan, or what they do beside the menus.
    std::optional<std::size_t> command = {};
    OtherKey other = {};

    bool isClash() const { return command || !other.use.isEmpty(); }
    /// Whether the keys can be given away all the same.
    bool yields() const { return command || other.use.isEmpty() || other.yields; }

    friend bool operator==(const KeyClash &, const KeyClash &) = default;
};

/// Whether a search finds a command: each of its words occurs in the caption or in the keys as they are shown, without
/// regard to case. An empty search finds all.
bool isFound(const QString &search, const QString &caption, const QString &shownKeys);

/// The keys of all commands while the user edits them. No keys are those of two commands. Commands are counted from 0.
class KeyPlan
{
public:
    KeyPlan() = default;
    KeyPlan(std::vector<CommandKey> commands, std::vector<OtherKey> others);

    const std::vector<CommandKey> &commands() const { return m_commands; }
    const CommandKey &command(std::size_t row) const { return m_commands[row]; }

    /// What else the keys are used for than this command. The keys that ship with it are its own, whatever they do
    /// beside the menus.
    KeyClash clash(std::size_t row, const QString &keys) const;

    /// Gives a command keys, or none, and takes them from the command that has them, which is returned.
    std::optional<std::size_t> set(std::size_t row, const QString &keys);
    /// The same with the keys that ship.
    std::optional<std::size_t> reset(std::size_t row) { return set(row, m_commands[row].shipped); }
    void resetAll();

    /// The commands whose keys differ from those at the beginning, or at the last setSaved().
    std::vector<KeyChange> changes() const;
    void setSaved() { m_saved = m_commands; }

private:
    std::optional<std::size_t> holder(std::size_t row, const QString &keys) const;

    std::vector<CommandKey> m_commands;
    std::vector<CommandKey> m_saved;
    std::vector<OtherKey> m_others;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <span>
#include <vector>

namespace zephira {

/// A command of the menus and the keys that run it. Keys are one key with its modifiers, written as in
/// QKeySequence::PortableText; empty: none.
struct CommandKey {
    QString name;    ///< under which its keys are kept
    QString caption; ///< with the menus that lead to it: "Tools > Table Wizard"
    QString shipped;
    QString keys;

    friend bool operator==(const CommandKey &, const CommandKey &) = default;
};

/// Keys that do something beside the menus.
struct OtherKey {
    QString keys;
    QString use;         ///< what they do, as the end of a sentence: "opens the menu File"
    bool yields = false; ///< whether a command that gets the keys is run in its place; otherwise neither of both works

    friend bool operator==(const OtherKey &, const OtherKey &) = default;
};

/// New keys for a command.
struct KeyChange {
    QString name;
    QString keys;

    friend bool operator==(const KeyChange &, const KeyChange &) = default;
};

/// The keys of the main window's menus.
class CommandKeys
{
public:
    virtual ~CommandKeys() = default;
    /// Every command of the menu bar, in the order of the menus, with the keys that are in effect.
    virtual std::vector<CommandKey> commands() const = 0;
    virtual std::vector<OtherKey> others() const = 0;
    /// Keeps new keys for the user and puts them into effect. If they can't be written, none is in effect.
    virtual Result<void> save(std::span<const KeyChange> changes) = 0;
};

} // namespace zephira

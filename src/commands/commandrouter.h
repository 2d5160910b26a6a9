// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command.h"
#include "commands/commandparts.h"
#include "commands/palettecommands.h"
#include "commands/sourceformatting.h"

namespace zephira {

/// Runs what was chosen in a menu, a toolbar, a pull-down or the palette. The chosen row says what it does; a row
/// without an effect does nothing, and is never enabled. If visual mode is being left, every command first waits until
/// the code view has the designer's text.
class CommandRouter
{
public:
    explicit CommandRouter(const CommandParts &parts);

    void run(const Command &command);
    /// A button of the tool palette.
    void runTag(const QuickTag &tag);
    /// Heading size 1 to 6 of the palette's pull-down.
    void heading(int size);
    /// The window is closing: commands that wait for something leave the document alone from now on.
    void abandon() { m_formatting.abandon(); }

private:
    const CommandParts m_parts;
    PaletteCommands m_palette;
    SourceFormatting m_formatting;
};

} // namespace zephira

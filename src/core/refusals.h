// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

namespace zephira {

class Designer;

/// The message with which a command that needs the code view refuses to run in visual mode. Each command has its own
/// wording.
enum class Refusal {
    None,
    CodeView,       ///< "… can only be used in Code View", titled
    CodeViewForNow, ///< the same, adding that this may change, titled
    Tools,          ///< "Sorry these tools …", no title
    WysiwygMode,    ///< "… from WYSIWYG Mode", no title
    WysiwygLower,   ///< the same with a small "mode"
};

/// The message to show.
Question refusalNote(Refusal refusal);

/// Shows the message and returns true if the command needs the code view while the designer is showing.
bool isRefused(Refusal refusal, const Designer &designer, Prompts &prompts);

} // namespace zephira

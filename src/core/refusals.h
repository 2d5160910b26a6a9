// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

namespace zephira {

class Designer;

/// How a command that needs the code view turns the user away in visual mode. Each command keeps its own wording.
enum class Refusal {
    None,
    CodeView,       ///< "… can only be used in Code View", titled
    CodeViewForNow, ///< the same with the promise that this may change, titled
    Tools,          ///< "Sorry these tools …", no title
    WysiwygMode,    ///< "… from WYSIWYG Mode", no title
    WysiwygLower,   ///< the same with a small "mode"
};

/// The note that the user gets.
Question refusalNote(Refusal refusal);

/// Tells the user and returns true if the command asks for the code view while the designer is showing.
bool isRefused(Refusal refusal, const Designer &designer, Prompts &prompts);

} // namespace zephira

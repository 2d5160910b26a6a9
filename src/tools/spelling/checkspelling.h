// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zephira {

struct AppContext;
class SpellCheck;

/// Checks the selection, or the whole text if nothing is selected, and puts the changes into the document as one undo
/// step. The form with the questions opens only if there are any. A message says that the check is complete, however it
/// ended; without a dictionary, another one says what is missing.
void checkSpelling(const AppContext &context, SpellCheck &check);

} // namespace zephira

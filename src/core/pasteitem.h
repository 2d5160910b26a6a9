// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

struct AppContext;

/// Inserts an item of a side list, or a wizard's result, after the text selected in the code view. The selected text
/// stays. An empty item does nothing. In visual mode the selected text and the item are both inserted into the
/// designer.
void pasteBehindSelection(const AppContext &context, const QString &item);

/// The same for the text that a wizard tried to make. If that failed, a message with the wizard's title says why and
/// nothing is inserted. Returns whether there was a text, so that the wizard may close.
bool pasteOrTell(const AppContext &context, const Result<QString> &item, const QString &title);

/// The same for lists that need the code view: in visual mode a message says so instead.
void pasteInCodeView(const AppContext &context, const QString &item);

} // namespace zephira

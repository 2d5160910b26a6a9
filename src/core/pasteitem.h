// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct AppContext;

/// Inserts an item of a side list, or a wizard's result, after the text selected in the code view. The selected text
/// stays. An empty item does nothing. In visual mode the selected text and the item are both inserted into the
/// designer.
void pasteBehindSelection(const AppContext &context, const QString &item);

/// The same for lists that need the code view: in visual mode a message says so instead.
void pasteInCodeView(const AppContext &context, const QString &item);

} // namespace zephira

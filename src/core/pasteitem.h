// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct AppContext;

/// Puts an item of a side list, or what a wizard made, after the text that is selected in the code view. The selected text stays; with an empty
/// item nothing happens at all. In visual mode the designer gets both.
void pasteBehindSelection(const AppContext &context, const QString &item);

/// The same for the lists that need the code view: in visual mode the user is told so instead.
void pasteInCodeView(const AppContext &context, const QString &item);

} // namespace zephira

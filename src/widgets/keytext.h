// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

// Keys as texts. They are written as in QKeySequence::PortableText; an empty text is no keys.

/// The keys in their usual spelling. No value for a text that isn't one key with its modifiers, nor empty.
///
///     normalKeys(u"shift+CTRL+t") == u"Ctrl+Shift+T"
std::optional<QString> normalKeys(const QString &text);

/// The keys as the desktop writes them.
QString shownKeys(const QString &keys);

/// Why the keys can't run a command, as a sentence: they type a character or are needed for writing. Empty if they can.
QString keysRefusal(const QString &keys);

} // namespace zephira

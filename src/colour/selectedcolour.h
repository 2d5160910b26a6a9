// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace zephira {

/// The colour in a text, written as in pages: #rgb, #rrggbb, rgb(r, g, b) in numbers or percentages, or a colour's
/// name, in any case and with blanks around it. Red is in the lowest byte. Nothing for any other text.
std::optional<quint32> colourOfText(const QString &text);

} // namespace zephira

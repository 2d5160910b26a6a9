// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editingcontrol.h"
#include "tools/tidyengine.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace zephira {

/// Turns the columns of the messages, as Tidy counts them, into UTF-16 code units. Tidy counts characters (or bytes), a
/// tab as up to eight, other control characters as nothing. `markup` is the UTF-8 with LF line ends that Tidy has read.
void toTextPlaces(std::vector<TidyMessage> &messages, const QByteArray &markup, bool inBytes);

/// What to select in the text for a message: the tag that begins there, otherwise the word, otherwise one character. A
/// place outside the text becomes the nearest place inside.
CodeMaxRange rangeAt(const QString &text, int line, int column);

} // namespace zephira

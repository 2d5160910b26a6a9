// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// Whether the text is a well-formed XML document. Entities that it doesn't declare count as known.
bool isWellFormed(QStringView text);

} // namespace zephira

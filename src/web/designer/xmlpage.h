// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace zephira {

/// Whether the text is well-formed XML with the root `html`. Entities that it doesn't declare count as known.
bool isXmlPage(QStringView text);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/languages.h"

#include <QString>

namespace zephira {

/// By the extension of the name. A document without a name or of an extension that nobody knows is markup.
DocumentKind documentKind(const QString &fileName);

} // namespace zephira

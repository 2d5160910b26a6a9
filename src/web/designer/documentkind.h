// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/languages.h"

#include <QString>

namespace zephira {

/// The kind according to the name's extension. A document without a name or with an unknown extension is markup.
DocumentKind documentKind(const QString &fileName);

} // namespace zephira

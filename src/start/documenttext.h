// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/result.h"

#include <QString>

namespace zephira {

class RecoveryCopies;

/// Replaces the whole text of the document without a question. Unsaved changes are kept as a recovery copy first; if
/// that fails, the text stays.
Result<void> replaceDocumentText(const AppContext &context, RecoveryCopies &recovery, const QString &text);

} // namespace zephira

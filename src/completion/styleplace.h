// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completionplace.h"

namespace zephira {

/// What stands at the end of a style sheet, or of the declarations in style="". The offset is one of `before`.
CompletionPlace stylePlace(QByteArrayView before, bool isDeclarations);

} // namespace zephira

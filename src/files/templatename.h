// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

namespace zephira {

/// Whether a user may give a template this name, which is a file's name with its extension. Fails with Code::Refused and
/// a sentence if the name is empty, names a folder ("../up.html", "a\b.html", "..") or contains a control character.
Result<void> checkTemplateName(const QString &name);

} // namespace zephira

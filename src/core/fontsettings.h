// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"
#include "core/settings.h"

#include <vector>

namespace zephira {

/// The font of the text as it is to be stored, in the order of the file.
std::vector<SettingChange> fontChanges(const FontChoice &font);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

namespace zephira {

class Configuration;

/// The font of the text as the configuration names it; what it doesn't name is as in `initial`. The size is one that can
/// be read.
FontChoice editorFont(const Configuration &configuration, const FontChoice &initial);

} // namespace zephira

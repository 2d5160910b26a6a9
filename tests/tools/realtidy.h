// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidy/tidylibrary.h"

namespace zephira {

/// Tidy itself, without loading a module.
inline Result<TidyEngine *> realTidy()
{
    static TidyLibrary library;
    return &library;
}

} // namespace zephira

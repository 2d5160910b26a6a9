// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidyengine.h"

namespace zephira {

/// Tidy through libtidy.
class TidyLibrary final : public TidyEngine
{
public:
    Result<Run> run(const QByteArray &markup, const std::vector<TidySetting> &settings, Steps steps,
                    TidyWatch &watch) const override;
};

} // namespace zephira

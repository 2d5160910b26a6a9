// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/tidy/tidylibrary.h"

#include <QObject>

namespace zephira {

/// The object that the module provides to the program.
class TidyModule final : public QObject, public TidyEngine
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.zephira.TidyEngine")
    Q_INTERFACES(zephira::TidyEngine)

public:
    Result<Run> run(const QByteArray &markup, const std::vector<TidySetting> &settings, Steps steps,
                    TidyWatch &watch) const override
    {
        return TidyLibrary().run(markup, settings, steps, watch);
    }
};

} // namespace zephira

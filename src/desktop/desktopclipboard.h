// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/clipboard.h"

namespace zephira {

/// The desktop's clipboard. Needs a QGuiApplication.
class DesktopClipboard final : public Clipboard
{
public:
    QString text() const override;
    void setText(const QString &text) override;
};

} // namespace zephira

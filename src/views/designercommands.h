// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/designercommand.h"

#include <QString>

#include <span>

namespace zephira {

/// A button of the designer's toolbar and its command.
struct DesignerButton {
    QStringView key;
    DesignerCommand command;
    QStringView tip;
    /// Name of an icon in the theme.
    QStringView icon;
    /// The page's own keys for it, or empty.
    QStringView keys = {};
};

/// Eleven rows. The keys "Outdent" and "Indent" are swapped with respect to their commands: the button named Indent
/// outdents.
std::span<const DesignerButton> designerButtons();

} // namespace zephira

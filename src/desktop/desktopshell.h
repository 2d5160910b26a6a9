// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/shell.h"

namespace zephira {

/// The shell of a freedesktop system.
class DesktopShell final : public Shell
{
public:
    /// A full path is opened as a file, which must exist; anything else must be an address with a scheme.
    Result<void> open(const QString &pathOrUrl) override;
    /// The program runs independently, in the user's home folder, and outlives us.
    Result<void> start(const QString &program, const QStringList &arguments) override;
    /// Shows the properties in the file manager, or in a window of our own if there is none. The file must exist.
    Result<void> showProperties(const QString &path) override;
    /// Opens the user's home folder in the file manager, which can search for files; if there is none, in a window of
    /// our own.
    Result<void> findFiles() override;
};

} // namespace zephira

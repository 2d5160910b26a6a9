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
    /// The program runs on its own, in the user's home folder, and outlives us.
    Result<void> start(const QString &program, const QStringList &arguments) override;
    /// The file manager shows the properties, or a window of our own where there is none. The file must exist.
    Result<void> showProperties(const QString &path) override;
    /// The file manager opens the user's home folder, where it looks for files; a window of our own does it where there
    /// is none.
    Result<void> findFiles() override;
};

} // namespace zephira

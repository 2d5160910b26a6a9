// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>
#include <QStringList>

namespace zephira {

/// The desktop around the program: opens files and addresses in other programs and starts processes.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens a file or an address with the program that the user has chosen for it.
    virtual Result<void> open(const QString &pathOrUrl) = 0;
    /// Starts a program, named by its absolute path, with an argument list; no shell is involved.
    virtual Result<void> start(const QString &program, const QStringList &arguments) = 0;

    /// Shows what the desktop knows of a file, named by its full path.
    virtual Result<void> showProperties(const QString &path) = 0;
    /// Opens the desktop's way to look for files.
    virtual Result<void> findFiles() = 0;
};

} // namespace zephira

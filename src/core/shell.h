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

    /// Opens a file or an address with the user's default application.
    virtual Result<void> open(const QString &pathOrUrl) = 0;
    /// Starts a program, given by its absolute path, with an argument list. No command shell is involved.
    virtual Result<void> start(const QString &program, const QStringList &arguments) = 0;

    /// Shows the desktop's properties dialog for a file, given by its full path.
    virtual Result<void> showProperties(const QString &path) = 0;
    /// Opens the desktop's file search.
    virtual Result<void> findFiles() = 0;
};

} // namespace zephira

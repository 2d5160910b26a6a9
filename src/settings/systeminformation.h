// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace zephira {

class FileStore;

/// A program, given by its full path, and its arguments.
struct SystemTool {
    QString program;
    QStringList arguments = {};

    friend bool operator==(const SystemTool &, const SystemTool &) = default;
};

/// The desktop's tool that shows information about the computer: the first known one that is installed.
std::optional<SystemTool> systemInformationTool(const FileStore &files);

} // namespace zephira

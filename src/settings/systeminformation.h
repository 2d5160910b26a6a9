// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace zephira {

class FileStore;

/// A program by full path, and its arguments.
struct SystemTool {
    QString program;
    QStringList arguments = {};

    friend bool operator==(const SystemTool &, const SystemTool &) = default;
};

/// The desktop's tool that shows what the computer is made of: the first of those known that is installed.
std::optional<SystemTool> systemInformationTool(const FileStore &files);

} // namespace zephira

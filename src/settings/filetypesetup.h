// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <optional>
#include <vector>

namespace zephira {

class FileTypeStore;
struct ProfileEntry;

/// A type of files, and the action with which files of it are opened.
struct FileTypeSetup {
    /// Without its dot.
    QString extension;
    QString description;
    /// The path of an icon.
    QString icon;
    /// As the user sees it, for example "Edit with Zephira".
    QString action;
    /// A program and " %1" for the file.
    QString command;
    /// Whether the desktop offers to make an empty file of this type; left as it is without a value.
    std::optional<bool> shellNew;
    /// Whether the desktop shows files of this type without opening them; left as it is without a value.
    std::optional<bool> quickView;
};

/// The section of reg.ini with the handlers that binding replaced.
inline constexpr QStringView savedHandlers = u"Reg";

/// The key of an action: blanks aren't allowed in it.
QString actionKey(const QString &action);

/// Writes a type to the store. `backup` receives, for reg.ini, what the keys of this very type held before; nullptr if
/// that isn't saved. Fails with Code::Refused, and writes nothing, if the extension can't be one: if it is empty, longer
/// than 100 characters, begins with a dot, begins or ends with a blank, or has a separator, a wildcard or a control
/// character in it.
Result<void> CreateFileType(FileTypeStore &store, const FileTypeSetup &type,
                            std::vector<ProfileEntry> *backup = nullptr);

} // namespace zephira

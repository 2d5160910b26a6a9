// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "desktop/filetypedesktop.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>
#include <optional>

namespace zephira {

/// Remembers how this program changed the user's list of which programs open which types, so that it can be changed
/// back.
struct AssociationRecord {
    /// The list without this program; nothing if there was no such file.
    std::optional<QByteArray> before;
    /// The list as this program last wrote it.
    std::optional<QByteArray> after;
    /// What this program opens by that list.
    DesktopTypes types;
    /// Default programs that the list didn't name before, by their types. They are named so that they stay the default
    /// ones although this program is listed too.
    QMap<QString, QString> kept;

    QByteArray toJson() const;
    /// Fails with Code::Malformed for anything but what toJson() makes.
    static Result<AssociationRecord> fromJson(const QByteArray &json);
};

/// The desktop entry that opens a type by default, or "".
using DefaultProgramOf = std::function<QString(const QString &type)>;

/// The record after the list, which now reads `current`, has been changed to open these types with `program`, the name
/// of a desktop entry. Types that the user has given to other programs meanwhile stay with them. Without types the list
/// is again what it was, and so is what others have changed in it meanwhile.
AssociationRecord withTypes(AssociationRecord record, const std::optional<QByteArray> &current,
                            const DesktopTypes &types, const QByteArray &program,
                            const DefaultProgramOf &defaultProgramOf);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace zephira {

/// A recovery copy of a document whose process ended without saving or discarding it.
struct LeftCopy {
    QString path;
    /// Name of the document's file without its folder, or the name given to an unnamed document.
    QString name;
    /// Start time of its process, in local time.
    QDateTime began;

    friend bool operator==(const LeftCopy &, const LeftCopy &) = default;
};

/// The copies in a recovery folder that don't belong to a running instance of the program, newest first. Empty if there
/// is no such folder.
QList<LeftCopy> leftCopies(const QString &folder);

/// Removes a copy from the list for good, but leaves it in its folder, where the user can find it.
Result<void> putAside(const LeftCopy &copy);

} // namespace zephira

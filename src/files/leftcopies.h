// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace zephira {

/// A copy of a document whose process ended without settling it.
struct LeftCopy {
    QString path;
    /// Name of the document's file, or what an unnamed document is called.
    QString name;
    /// When its process began, in local time.
    QDateTime began;

    friend bool operator==(const LeftCopy &, const LeftCopy &) = default;
};

/// The copies in a folder of recovery copies that no running program of this kind looks after, the newest first. A folder
/// that isn't there has none.
QList<LeftCopy> leftCopies(const QString &folder);

/// Takes a copy out of the list for good and leaves it in its folder, where its user finds it.
Result<void> putAside(const LeftCopy &copy);

} // namespace zephira

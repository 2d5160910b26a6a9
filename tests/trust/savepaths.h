// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

namespace zephira {

/// A way in which the program saves something.
struct SavePath {
    const char *name = "";
    /// Makes what is there before, in an empty folder.
    std::function<void(const QString &folder)> prepare;
    /// Saves with the program's own functions; calls `begin` when all that comes before is done. Returns whether the user
    /// would be told that it is saved.
    std::function<bool(const QString &folder, const std::function<void()> &begin)> save;
    /// What the user has now, wherever it is: equal before and after the same save, and in no state between.
    std::function<QByteArray(const QString &folder)> state;
    /// Whether it also writes what may be missing, and so needn't be told about.
    bool hasExtras = false;
};

const std::vector<SavePath> &savePaths();

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace zephira {

struct AppContext;

/// True if a file in the program's folder `appPath` is needed by the program or was installed with it, or if it lies in
/// the folder of the user's settings and recovery copies. Files that users added to the program's folder, such as saved
/// logs and profiles, don't count.
bool isProgramData(const QString &appPath, const QString &file);

/// Asks the user about those files of a folder that are program data, by their names: "Zephira itself needs: tags.dat",
/// and the question. True if there are none, or if the answer is yes.
bool mayChangeProgramData(const AppContext &context, const QString &folder, const QStringList &names,
                          const QString &question);

/// The same before the named files are written. Files that don't exist yet don't count; the targets of links do, and so
/// do profiles.
bool mayOverwriteProgramData(const AppContext &context, const QString &folder, const QStringList &names);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct AppContext;

/// The folder of the saved logs. It is there from the installation on.
QString logFolder(const AppContext &context);

/// Asks for a name and saves the log in the folder of the logs. An older file of that name is written over from its start
/// and keeps what is longer. A file that can't be written raises HandlerError.
void saveSessionLog(const AppContext &context, const QString &log);

} // namespace zephira

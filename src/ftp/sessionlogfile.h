// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct AppContext;

/// The folder for saved logs, which the installation creates.
QString logFolder(const AppContext &context);

/// Asks for a name and saves the log in the folder for logs. An existing file is overwritten from its start and keeps
/// whatever is longer. Raises HandlerError if the file can't be written.
void saveSessionLog(const AppContext &context, const QString &log);

} // namespace zephira

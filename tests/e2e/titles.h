// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Titles of the windows that several test classes wait for, and the time-out.
namespace zephira::titles {

inline const QString untitled = QStringLiteral("Zephira - [New Document]");
inline const QString openDialog = QStringLiteral("Open a document...");
inline const QString saveDialog = QStringLiteral("Save a document...");
inline const QString overwrite = QStringLiteral("Overwrite?");
inline const QString modified = QStringLiteral("Document Modified.");
/// A message box without a title of its own.
inline const QString message = QStringLiteral("Zephira");

/// Time-out in milliseconds for anything that a test waits for, long enough for a slow machine.
inline constexpr int patience = 20000;

} // namespace zephira::titles

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace zephira {

// The text of the per-user store, in the INI format of QSettings. A path is a group, a slash and a key, which may contain
// more slashes; all that is kept are strings.

/// The value at a path; nothing if there is none. Of several the last one counts.
std::optional<QString> storedText(const QByteArray &store, const QString &path);

/// The store with another value at the path; with nothing there if `value` has none. All other lines stay as they are.
QByteArray withStoredText(const QByteArray &store, const QString &path, const std::optional<QString> &value);

/// The last parts of all paths that begin with these parts and have one more, in the order of the text.
QStringList storedNames(const QByteArray &store, const QString &path);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace zephira {

// Paths that the user or a document may have written: both "\" and "/" are separators.

/// The part after the last separator.
QString fileTitleOf(const QString &path);
/// The path up to and including its last separator.
QString folderOf(const QString &path);
/// The folder with a trailing separator; the platform's separator is added if there was none.
QString withSeparator(const QString &folder);
/// The text after a name's last dot; empty if there is none. A name that begins with its only dot has an extension too.
QString extensionOf(const QString &name);

// Paths on this machine and on a server, where only "/" is a separator: names may contain any other character.

/// The path with a trailing "/"; also for the bytes that a server sends.
QString withSlash(const QString &folder);
QByteArray withSlash(const QByteArray &folder);
/// The path before the last separator, or "/" if nothing precedes it.
QString parentFolder(const QString &folder);
/// The part after the last separator.
QString lastName(const QString &path);

} // namespace zephira

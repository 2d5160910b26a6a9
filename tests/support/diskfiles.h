// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

namespace zephira {

// Real files of a test, past the store that it may be testing.

/// The content of a file; "<unreadable>" if there is none, or none that can be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

/// Creates or overwrites a file, with its folder. The test program ends if that fails. Returns the path.
inline QString putFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write %s", qPrintable(path));
    return path;
}

/// The permission bits of a file, or of a symbolic link itself; 0 if there is none.
inline mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

} // namespace zephira

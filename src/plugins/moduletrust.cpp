// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/moduletrust.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace zephira {

namespace {

bool onlyOursToChange(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return false;
    const bool isOurs = status.st_uid == ::geteuid() || status.st_uid == 0;
    return isOurs && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

} // namespace

bool isTrustedModule(const QString &file, const QString &programFolder)
{
    // A link can be exchanged in its own folder, and what it leads to in that one's.
    const QString target = QFileInfo(file).canonicalFilePath();
    const QStringList places{target, QFileInfo(target).path(), QFileInfo(file).path(), programFolder};
    return !target.isEmpty() && std::ranges::all_of(places, onlyOursToChange);
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/appfolder.h"

#include "files/diskfilestore.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString iniName = u"zephira.ini"_s;
constexpr mode_t folderMode = 0700;
constexpr QFile::Permissions fileMode = QFile::ReadOwner | QFile::WriteOwner;

Error unmade(const QString &folder)
{
    return {Error::Code::Unwritable,
            u"The folder %1 can't be created: %2."_s.arg(folder, QString::fromLocal8Bit(std::strerror(errno)))};
}

/// Creates a folder and its missing parents, accessible only to the user.
Result<void> makePrivateFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return {};
    const QString parent = QFileInfo(path).path();
    if (parent != path) {
        if (const Result<void> made = makePrivateFolder(parent); !made)
            return made;
    }
    if (::mkdir(QFile::encodeName(path).constData(), folderMode) != 0 && errno != EEXIST)
        return unmade(path);
    return {};
}

/// Another process may create the same file at the same time; either copy will do.
Result<void> copyMissing(const QString &source, const QString &target)
{
    if (QFileInfo::exists(target))
        return {};
    QFile file(source);
    if (!file.copy(target) && !QFileInfo::exists(target)) {
        return Error{Error::Code::Unwritable,
                     u"The file %1 can't be copied to %2: %3."_s.arg(source, target, file.errorString())};
    }
    QFile::setPermissions(target, fileMode);
    return {};
}

/// The executable and its modules are not data and aren't copied.
bool isProgram(const QFileInfo &file)
{
    return file.isFile() && (file.isExecutable() || file.suffix() == u"so");
}

/// The configuration is copied last: a folder that contains it is complete.
Result<void> fillFolder(const QString &source, const QString &target)
{
    if (!QFileInfo::exists(source + u'/' + iniName)) {
        return Error{
            Error::Code::NotFound,
            u"Zephira can't start: there is no %1 next to the program or in %2. Please reinstall the program."_s.arg(
                iniName, source)};
    }
    const QDir root(source);
    QDirIterator walk(source, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString relative = root.relativeFilePath(path);
        if (relative == iniName || (!relative.contains(u'/') && isProgram(walk.fileInfo())))
            continue;
        const QString place = target + u'/' + relative;
        const Result<void> done = walk.fileInfo().isDir() ? makePrivateFolder(place) : copyMissing(path, place);
        if (!done)
            return done;
    }
    return copyMissing(source + u'/' + iniName, target + u'/' + iniName);
}

/// The folder, if its configuration can be read; otherwise an error, because every setting would seem to be missing.
Result<QString> readableFolder(const QString &folder)
{
    const Result<QByteArray> settings = DiskFileStore().read(folder + u'/' + iniName);
    if (!settings)
        return Error{settings.error().code, u"Zephira can't start: "_s + settings.error().sentence};
    return folder;
}

} // namespace

Result<QString> prepareAppPath(const QString &executableFolder, const QString &installedData, const QString &dataHome)
{
    const bool isPortable = QFileInfo::exists(executableFolder + u'/' + iniName);
    if (isPortable && QFileInfo(executableFolder).isWritable())
        return readableFolder(QDir::cleanPath(executableFolder));

    const QString source = isPortable ? executableFolder : installedData;
    const QString folder = QDir::cleanPath(dataHome + u"/zephira"_s);
    if (const Result<void> made = makePrivateFolder(folder); !made)
        return made.error();
    if (!QFileInfo::exists(folder + u'/' + iniName)) {
        if (const Result<void> filled = fillFolder(QDir::cleanPath(source), folder); !filled)
            return filled.error();
    }
    return readableFolder(folder);
}

Result<QString> scratchFolder(const QString &cacheHome)
{
    const QString folder = QDir::cleanPath(cacheHome + u"/zephira/scratch"_s);
    if (const Result<void> made = makePrivateFolder(QFileInfo(folder).path()); !made)
        return made.error();
    const QByteArray name = QFile::encodeName(folder);
    if (::mkdir(name.constData(), folderMode) != 0 && errno != EEXIST)
        return unmade(folder);

    // Someone else may have planted what exists there, so links aren't followed and only a folder of our own is
    // accepted.
    struct stat status;
    if (::lstat(name.constData(), &status) != 0)
        return unmade(folder);
    if (!S_ISDIR(status.st_mode) || status.st_uid != ::geteuid()) {
        return Error{
            Error::Code::Refused,
            u"%1 isn't a folder that belongs to you, so Zephira doesn't write temporary files there."_s.arg(folder)};
    }
    if ((status.st_mode & 07777) != folderMode && ::chmod(name.constData(), folderMode) != 0)
        return unmade(folder);
    return folder;
}

Result<QString> scratchFolder()
{
    return scratchFolder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
}

QString userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/Zephira"_s;
}

} // namespace zephira

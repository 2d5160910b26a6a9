// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/appfolder.h"

#include "files/atomicwrite.h"
#include "files/diskfilestore.h"
#include "files/filesystemcalls.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
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
constexpr int ownFileMode = 0600;

Error unmade(const QString &folder)
{
    return {Error::Code::Unwritable,
            QCoreApplication::translate("FileErrors", "The folder %1 can't be created: %2.")
                .arg(folder, QString::fromLocal8Bit(std::strerror(errno)))};
}

/// Another process may create the same file at the same time; either copy will do. One that is interrupted leaves none, and
/// what can be copied again needn't be waited for.
Result<void> copyMissing(const QString &source, const QString &target)
{
    if (QFileInfo::exists(target))
        return {};
    const Result<QByteArray> content = DiskFileStore().read(source);
    if (!content)
        return content.error();
    FileSystemCalls calls;
    const QByteArrayView piece = content.value();
    return AtomicWrite(calls, target, AtomicWrite::Flush::WhenReplacing).run({&piece, 1}, ownFileMode);
}

/// The executable and its modules are not data and aren't copied.
bool isProgram(const QFileInfo &file)
{
    return file.isFile() && (file.isExecutable() || file.suffix() == u"so");
}

/// The configuration is copied last: a folder that contains it is complete.
Result<void> fillFolder(const QStringList &sources, const QString &target, const QSet<QString> &known,
                        QStringList &offered)
{
    DiskFileStore().removeLeavings(target);
    for (const QString &source : sources) {
        const QDir root(source);
        QDirIterator walk(source, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString path = walk.next();
            const QString relative = root.relativeFilePath(path);
            if (relative == iniName || (!relative.contains(u'/') && isProgram(walk.fileInfo())))
                continue;
            offered.append(relative);
            if (known.contains(relative))
                continue;
            const QString place = target + u'/' + relative;
            const bool isFolder = walk.fileInfo().isDir();
            const Result<void> done = isFolder ? makePrivateFolder(place) : copyMissing(path, place);
            if (!done)
                return done;
            if (isFolder)
                DiskFileStore().removeLeavings(place);
        }
    }
    return copyMissing(sources.constFirst() + u'/' + iniName, target + u'/' + iniName);
}

/// What a folder has been offered: a line with the version, then one for each path. A file that its user has deleted isn't
/// offered again, but what a later version brings is.
class Offers
{
public:
    explicit Offers(const QString &folder) : m_file(folder + u"/.installed"_s)
    {
        if (const Result<QByteArray> kept = DiskFileStore().read(m_file))
            m_lines = QString::fromUtf8(kept.value()).split(u'\n');
    }

    QString version() const { return m_lines.value(0); }
    QSet<QString> paths() const { return {m_lines.cbegin(), m_lines.cend()}; }
    /// A record that can't be written only means that the same is looked through at the next start.
    void keep(const QString &version, QStringList paths) const
    {
        paths.sort();
        paths.prepend(version);
        [[maybe_unused]] const Result<void> written =
            DiskFileStore().FileStore::write(m_file, paths.join(u'\n').toUtf8(), ownFileMode);
    }

private:
    const QString m_file;
    QStringList m_lines;
};

/// Whoever owns the folder could exchange what the program reads from it, and read what it writes there. A link to a folder
/// of one's own is one's own choice.
Result<void> checkOwner(const QString &folder)
{
    const QByteArray name = QFile::encodeName(folder);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return unmade(folder);
    if (!S_ISDIR(status.st_mode) || status.st_uid != ::geteuid()) {
        return Error{
            Error::Code::Refused,
            QCoreApplication::translate("FileErrors", "Zephira can't start: %1 isn't a folder that belongs to you.")
                .arg(folder)};
    }
    // Some file systems have no modes, which is no reason not to start.
    if ((status.st_mode & 077) != 0)
        ::chmod(name.constData(), folderMode);
    return {};
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

Result<QString> prepareAppPath(const QString &executableFolder, const QString &installedData, const QString &dataHome,
                               const QString &version)
{
    const bool isPortable = QFileInfo::exists(executableFolder + u'/' + iniName);
    if (isPortable && QFileInfo(executableFolder).isWritable())
        return readableFolder(QDir::cleanPath(executableFolder));

    const QString folder = QDir::cleanPath(dataHome + u"/zephira"_s);
    if (const Result<void> made = makePrivateFolder(folder); !made)
        return made.error();
    if (const Result<void> own = checkOwner(folder); !own)
        return own.error();
    const Offers offers(folder);
    const bool isComplete = QFileInfo::exists(folder + u'/' + iniName);
    if (isComplete && offers.version() == version)
        return readableFolder(folder);

    // An installation in the system has its data in one folder, and the modules of the extensions beside the program.
    QStringList sources{QDir::cleanPath(executableFolder)};
    if (!isPortable)
        sources.prepend(QDir::cleanPath(installedData));
    if (!QFileInfo::exists(sources.constFirst() + u'/' + iniName)) {
        if (isComplete)
            return readableFolder(folder);
        return Error{
            Error::Code::NotFound,
            QCoreApplication::translate(
                "FileErrors",
                "Zephira can't start: there is no %1 next to the program or in %2. Please reinstall the program.")
                .arg(iniName, sources.constFirst())};
    }
    QStringList offered;
    if (const Result<void> filled = fillFolder(sources, folder, isComplete ? offers.paths() : QSet<QString>(), offered);
        !filled)
        return isComplete ? readableFolder(folder) : filled.error();
    offers.keep(version, offered);
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
            QCoreApplication::translate(
                "FileErrors", "%1 isn't a folder that belongs to you, so Zephira doesn't write temporary files there.")
                .arg(folder)};
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

void makeUserFolder()
{
    const QString folder = userFolder();
    if (makePrivateFolder(folder))
        ::chmod(QFile::encodeName(folder).constData(), folderMode);
}

} // namespace zephira

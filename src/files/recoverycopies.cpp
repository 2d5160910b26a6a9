// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/recoverycopies.h"

#include "core/clock.h"
#include "core/filestore.h"
#include "core/paths.h"
#include "files/fileerror.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int keptVersions = 50;
constexpr qsizetype keptRuns = 9;
constexpr int ownerOnly = 0600;
/// In bytes. Leaves room for the prefix in a file name of 255 bytes.
constexpr qsizetype maximumBaseName = 180;

/// Time and process ID. The time is UTC, so that alphabetical order of the names is the order of their age.
QString stamp(const QDateTime &time)
{
    return time.toUTC().toString(u"yyyyMMdd-HHmmss-zzz"_s) + u'-' + QString::number(QCoreApplication::applicationPid());
}

/// The end of the file name, which includes the extension, cut between characters.
QString baseName(const QString &titleOrPath)
{
    QString name = lastName(titleOrPath);
    name.replace(QChar(u'\0'), QChar(u'_'));
    while (name.toUtf8().size() > maximumBaseName)
        name.remove(0, name.size() > 1 && name[0].isHighSurrogate() ? 2 : 1);
    return name;
}

} // namespace

RecoveryCopies::RecoveryCopies(QString folder, FileStore &files, const Clock &clock)
    : m_folder(std::move(folder)), m_files(files), m_clock(clock), m_ownPrefix(u"open-"_s + stamp(clock.now()) + u'-')
{}

Result<QString> RecoveryCopies::keepDisk(const QString &path, QByteArrayView bytes)
{
    if (Result<void> made = makeFolder(); !made)
        return made.error();
    const QString start = m_folder + u"/disk-"_s + stamp(m_clock.now()) + u'-';
    QString copy;
    do {
        copy = start + QString::number(++m_counter).rightJustified(3, u'0') + u'-' + baseName(path);
    } while (m_files.signature(copy).exists);
    if (Result<void> written = m_files.write(copy, bytes, ownerOnly); !written)
        return written.error();
    removeOldest(copy);
    return copy;
}

QString RecoveryCopies::beginReplacing()
{
    const QString mark = u"replaced-"_s;
    // The name of a run is as long as its time and process, and what follows is a number and the file's name.
    const auto runOf = [&](const QString &copy) { return copy.section(u'-', 0, 4); };
    const QDir folder(m_folder);
    const QStringList copies = folder.entryList({mark + u'*'}, QDir::Files | QDir::Hidden, QDir::Name);
    QStringList runs;
    for (const QString &copy : copies) {
        if (runs.isEmpty() || runs.back() != runOf(copy))
            runs.append(runOf(copy));
    }
    const QStringList old = runs.first(std::max<qsizetype>(runs.size() - keptRuns, 0));
    for (const QString &copy : copies) {
        if (old.contains(runOf(copy)))
            static_cast<void>(m_files.remove(folder.filePath(copy)));
    }
    m_replaced = 0;
    return mark + stamp(m_clock.now());
}

Result<void> RecoveryCopies::keepReplaced(const QString &run, const QString &path, QByteArrayView bytes)
{
    if (Result<void> made = makeFolder(); !made)
        return made;
    QString copy;
    do {
        copy =
            u"%1/%2-%3-%4"_s.arg(m_folder, run, QString::number(++m_replaced).rightJustified(5, u'0'), baseName(path));
    } while (m_files.signature(copy).exists);
    return m_files.write(copy, bytes, ownerOnly);
}

Result<void> RecoveryCopies::write(const QString &titleOrPath, std::span<const QByteArrayView> pieces)
{
    if (Result<void> made = makeFolder(); !made)
        return made;
    const QString copy = m_folder + u'/' + m_ownPrefix + baseName(titleOrPath);
    if (Result<void> written = m_files.write(copy, pieces, ownerOnly); !written)
        return written;
    // The document may have been renamed; the copy under the old name is removed once the new one is written.
    if (m_own != copy)
        removeOwn();
    m_own = copy;
    return {};
}

Result<void> RecoveryCopies::keepUnsaved(const QString &titleOrPath, std::span<const QByteArrayView> pieces)
{
    if (Result<void> made = makeFolder(); !made)
        return made;
    // The name must be unique, even next to the document's own copy and within one tick of the clock.
    QDateTime time = m_clock.now();
    QString copy;
    do {
        time = time.addMSecs(1);
        copy = m_folder + u"/open-"_s + stamp(time) + u'-' + baseName(titleOrPath);
    } while (copy.startsWith(m_folder + u'/' + m_ownPrefix) || m_files.signature(copy).exists);
    return m_files.write(copy, pieces, ownerOnly);
}

void RecoveryCopies::removeOwn()
{
    // A copy that can't be removed stays recorded, so that the next attempt may succeed.
    if (!m_own.isEmpty() && (m_files.remove(m_own) || !m_files.signature(m_own).exists))
        m_own.clear();
}

Result<void> RecoveryCopies::makeFolder() const
{
    const QByteArray name = QFile::encodeName(m_folder);
    QDir().mkpath(QFileInfo(m_folder).path());
    struct stat status = {};
    if (mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        return saveError(m_folder, errno);
    // Someone else may have planted a link or a folder there. One's own folder may be accessible to others.
    if (lstat(name.constData(), &status) != 0)
        return saveError(m_folder, errno);
    if (S_ISLNK(status.st_mode) || status.st_uid != geteuid())
        return saveError(m_folder, Error::Code::Refused, u"it isn't a folder that belongs to you"_s);
    if ((status.st_mode & 077) != 0 && chmod(name.constData(), 0700) != 0)
        return saveError(m_folder, errno);
    return {};
}

void RecoveryCopies::removeOldest(const QString &newest) const
{
    const QDir folder(m_folder);
    QStringList copies = folder.entryList({u"disk-*"_s}, QDir::Files | QDir::Hidden, QDir::Name);
    // The copy just made is never removed, even if the clock was set back.
    copies.removeOne(QFileInfo(newest).fileName());
    for (qsizetype i = 0; i < copies.size() - (keptVersions - 1); ++i)
        static_cast<void>(m_files.remove(folder.filePath(copies[i])));
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/desktopusersettings.h"

#include "files/appfolder.h"
#include "files/diskfilestore.h"
#include "files/folderlock.h"
#include "files/usersettingstext.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr int privateMode = 0600;

/// Escapes a name as one level of the store's path, which may not contain a separator or be empty.
QString level(QString name)
{
    name.replace(u'%', u"%25"_s).replace(u'/', u"%2F"_s).replace(u'\\', u"%5C"_s);
    return name.isEmpty() ? u"%"_s : name;
}

/// The name that was escaped.
QString nameOf(QString level)
{
    if (level == u'%')
        return {};
    return level.replace(u"%5C"_s, u"\\"_s).replace(u"%2F"_s, u"/"_s).replace(u"%25"_s, u"%"_s);
}

QString storeGroup(const QString &branch, const QString &section)
{
    return level(branch) + u'/' + level(section);
}

QString storeKey(const QString &branch, const QString &section, const QString &key)
{
    return storeGroup(branch, section) + u'/' + level(key);
}

QByteArray store()
{
    return DiskFileStore().read(DesktopUserSettings::fileName()).valueOr({});
}

/// Whether the change has reached the file. A store that can't be read isn't replaced.
bool change(const QString &path, const std::optional<QString> &value)
{
    const QString file = DesktopUserSettings::fileName();
    const QString folder = QFileInfo(file).path();
    if (!makePrivateFolder(folder))
        return false;
    const FolderLock lock(QFile::encodeName(folder));
    if (!lock.isHeld())
        return false;
    DiskFileStore files;
    const Result<QByteArray> old = files.read(file);
    if (!old && old.error().code != Error::Code::NotFound)
        return false;
    const QByteArray before = old.valueOr({});
    const QByteArray after = withStoredText(before, path, value);
    return after == before || files.FileStore::write(file, after, privateMode).ok();
}

} // namespace

QString DesktopUserSettings::read(const QString &branch, const QString &section, const QString &key,
                                  const QString &fallback) const
{
    return storedText(store(), storeKey(branch, section, key)).value_or(fallback);
}

bool DesktopUserSettings::write(const QString &branch, const QString &section, const QString &key, const QString &value)
{
    return change(storeKey(branch, section, key), value);
}

bool DesktopUserSettings::remove(const QString &branch, const QString &section, const QString &key)
{
    return change(storeKey(branch, section, key), std::nullopt);
}

QStringList DesktopUserSettings::keys(const QString &branch, const QString &section) const
{
    QStringList names;
    const QStringList levels = storedNames(store(), storeGroup(branch, section));
    for (const QString &each : levels)
        names.append(nameOf(each));
    return names;
}

QString DesktopUserSettings::fileName()
{
    // The folder that QSettings would use. Making one of those for the name alone looks at a dozen files each time.
    QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + u'/' + (folder.isEmpty() ? u".config"_s : folder);
    return folder + u"/Zephira/Zephira.ini"_s;
}

} // namespace zephira

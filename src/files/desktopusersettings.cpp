// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/desktopusersettings.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QSettings store()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"Zephira"_s, u"Zephira"_s);
}

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

/// Whether all that was set has reached the file.
bool isWritten(QSettings &settings)
{
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

QString DesktopUserSettings::read(const QString &branch, const QString &section, const QString &key,
                                  const QString &fallback) const
{
    const QSettings settings = store();
    return settings.value(storeKey(branch, section, key), fallback).toString();
}

bool DesktopUserSettings::write(const QString &branch, const QString &section, const QString &key, const QString &value)
{
    QSettings settings = store();
    settings.setValue(storeKey(branch, section, key), value);
    return isWritten(settings);
}

bool DesktopUserSettings::remove(const QString &branch, const QString &section, const QString &key)
{
    QSettings settings = store();
    settings.remove(storeKey(branch, section, key));
    return isWritten(settings);
}

QStringList DesktopUserSettings::keys(const QString &branch, const QString &section) const
{
    QSettings settings = store();
    settings.beginGroup(storeGroup(branch, section));
    QStringList names;
    const QStringList levels = settings.childKeys();
    for (const QString &each : levels)
        names.append(nameOf(each));
    return names;
}

QString DesktopUserSettings::fileName()
{
    return store().fileName();
}

} // namespace zephira

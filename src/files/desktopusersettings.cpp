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

QString storeKey(const QString &branch, const QString &section, const QString &key)
{
    return level(branch) + u'/' + level(section) + u'/' + level(key);
}

} // namespace

QString DesktopUserSettings::read(const QString &branch, const QString &section, const QString &key,
                                  const QString &fallback) const
{
    const QSettings settings = store();
    return settings.value(storeKey(branch, section, key), fallback).toString();
}

void DesktopUserSettings::write(const QString &branch, const QString &section, const QString &key, const QString &value)
{
    QSettings settings = store();
    settings.setValue(storeKey(branch, section, key), value);
    settings.sync();
}

QString DesktopUserSettings::fileName()
{
    return store().fileName();
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/settings.h"

#include <QString>
#include <QStringList>

namespace zephira {

/// The per-user store, addressed by branch, section and key. All values are strings and are written at once. Only the
/// rows of userSettingRows() can be read and written.
class UserSettings
{
public:
    virtual ~UserSettings() = default;

    /// A missing value reads as the row's fallback.
    QString GetSetting(UserSetting setting) const
    {
        const UserSettingRow &row = userSettingRow(setting);
        return read(row.branch, row.section, row.key, row.fallback);
    }
    /// Returns false if the value couldn't be written.
    bool SaveSetting(UserSetting setting, const QString &value)
    {
        const UserSettingRow &row = userSettingRow(setting);
        return write(row.branch, row.section, row.key, value);
    }

    /// The same for a value that each form, each project folder or each command has, in a section or under a key named
    /// after it.
    QString GetSetting(UserSetting setting, const QString &owner, const QString &fallback) const
    {
        const UserSettingRow &row = userSettingRow(setting);
        return read(row.branch, sectionOf(row, owner), keyOf(row, owner), fallback);
    }
    bool SaveSetting(UserSetting setting, const QString &owner, const QString &value)
    {
        const UserSettingRow &row = userSettingRow(setting);
        return write(row.branch, sectionOf(row, owner), keyOf(row, owner), value);
    }
    /// Removes the value, so that it is missing again. Returns false if the store couldn't be written.
    bool RemoveSetting(UserSetting setting, const QString &owner)
    {
        const UserSettingRow &row = userSettingRow(setting);
        return remove(row.branch, sectionOf(row, owner), keyOf(row, owner));
    }
    /// The owners that have a value under a key named after them, in no particular order.
    QStringList owners(UserSetting setting) const
    {
        const UserSettingRow &row = userSettingRow(setting);
        return keys(row.branch, row.section);
    }

private:
    static QString sectionOf(const UserSettingRow &row, const QString &owner)
    {
        return row.section.isEmpty() ? owner : row.section;
    }
    static QString keyOf(const UserSettingRow &row, const QString &owner)
    {
        return row.key.isEmpty() ? owner : row.key;
    }

    virtual QString read(const QString &branch, const QString &section, const QString &key,
                         const QString &fallback) const = 0;
    virtual bool write(const QString &branch, const QString &section, const QString &key, const QString &value) = 0;
    virtual bool remove(const QString &branch, const QString &section, const QString &key) = 0;
    /// The keys of a section that have a value.
    virtual QStringList keys(const QString &branch, const QString &section) const = 0;
};

} // namespace zephira

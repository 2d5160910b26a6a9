// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/settings.h"

#include <QString>

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
    void SaveSetting(UserSetting setting, const QString &value)
    {
        const UserSettingRow &row = userSettingRow(setting);
        write(row.branch, row.section, row.key, value);
    }

    /// The same for a value that each form, or each project folder, has, in the section named after it.
    QString GetSetting(UserSetting setting, const QString &owner, const QString &fallback) const
    {
        const UserSettingRow &row = userSettingRow(setting);
        return read(row.branch, owner, row.key, fallback);
    }
    void SaveSetting(UserSetting setting, const QString &owner, const QString &value)
    {
        const UserSettingRow &row = userSettingRow(setting);
        write(row.branch, owner, row.key, value);
    }

private:
    virtual QString read(const QString &branch, const QString &section, const QString &key,
                         const QString &fallback) const = 0;
    virtual void write(const QString &branch, const QString &section, const QString &key, const QString &value) = 0;
};

} // namespace zephira

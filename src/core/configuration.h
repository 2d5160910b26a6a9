// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"
#include "core/settings.h"

#include <QString>

#include <span>
#include <vector>

namespace zephira {

/// The settings of the installation, zephira.ini in the program folder. Nothing is cached: each call goes to the store.
/// Only the rows of settingRows() can be read and written.
class Configuration
{
public:
    virtual ~Configuration() = default;

    /// The value as it is stored, whatever its kind. A missing key reads as the row's fallback.
    QString value(Setting setting) const
    {
        const SettingRow &row = settingRow(setting);
        const QString kept = read(row.section, row.key);
        return kept.isEmpty() ? row.fallback : kept;
    }
    /// Writes at once. Returns false if the store couldn't be written.
    bool setValue(Setting setting, const QString &value) { return setValues({{setting, value}}).ok(); }
    /// Writes all values at once, in this order, so that the last one of a setting counts. If the store can't be
    /// written, it keeps all its values.
    Result<void> setValues(const std::vector<SettingChange> &changes) { return write(changes); }

private:
    /// Section and key are not case-sensitive. Returns "" for a missing value.
    virtual QString read(const QString &section, const QString &key) const = 0;
    virtual Result<void> write(std::span<const SettingChange> changes) = 0;
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The per-user store: branch, section, key. All values are strings and are written at once.
class UserSettings
{
public:
    virtual ~UserSettings() = default;
    virtual QString GetSetting(const QString &branch, const QString &section, const QString &key,
                               const QString &fallback) const = 0;
    virtual void SaveSetting(const QString &branch, const QString &section, const QString &key,
                             const QString &value) = 0;
};

} // namespace zephira

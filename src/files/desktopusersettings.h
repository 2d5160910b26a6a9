// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/usersettings.h"

#include <QString>

namespace zephira {

/// The per-user store, in the desktop's usual location and in the format of QSettings: one group per branch, with one
/// subgroup per section. QSettings itself would replace a store that it can't read, and takes a failed write for a good
/// one.
class DesktopUserSettings final : public UserSettings
{
public:
    QString read(const QString &branch, const QString &section, const QString &key,
                 const QString &fallback) const override;
    bool write(const QString &branch, const QString &section, const QString &key, const QString &value) override;
    bool remove(const QString &branch, const QString &section, const QString &key) override;
    QStringList keys(const QString &branch, const QString &section) const override;

    /// Full path of the store's file. Other per-user files are next to it.
    static QString fileName();
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/usersettings.h"

#include <QString>

namespace zephira {

/// The per-user store in the desktop's own place, through QSettings: one group a branch, one a section.
class DesktopUserSettings final : public UserSettings
{
public:
    QString read(const QString &branch, const QString &section, const QString &key,
                 const QString &fallback) const override;
    void write(const QString &branch, const QString &section, const QString &key, const QString &value) override;

    /// Full path of the file that holds the store; what else belongs to the user lies beside it.
    static QString fileName();
};

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// The settings that belong to the installation, zephira.ini in the program folder. Nothing is kept in memory: each call
/// goes to the store.
class Configuration
{
public:
    virtual ~Configuration() = default;
    virtual QString value(const QString &section, const QString &key) const = 0;
    virtual bool setValue(const QString &section, const QString &key, const QString &value) = 0;
};

} // namespace zephira

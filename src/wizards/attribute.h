// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// An attribute with a space before it, such as ` name="value"`. The value is inserted as it is.
inline QString attribute(const QString &name, const QString &value, const QString &quotes = QStringLiteral("\""))
{
    return QLatin1Char(' ') + name + QLatin1Char('=') + quotes + value + quotes;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour/spynotations.h"

using namespace Qt::StringLiterals;

namespace zephira {

QString spyNotation(const Channels &channels)
{
    QString text = u"#"_s;
    for (const quint8 channel : channels) {
        const QString digits = QString::number(channel, 16).toUpper();
        text += digits == u"0"_s ? u"00"_s : digits;
    }
    return text;
}

} // namespace zephira

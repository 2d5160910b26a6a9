// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/vbtext.h"

#include <QString>
#include <QStringList>

namespace zephira {

/// The link targets of a page, found step by step without regard to speed, as a reference for the real search.
inline QStringList plainLinkTargets(const QString &text)
{
    using namespace Qt::StringLiterals;
    QStringList targets;
    for (const bool unquoted : {false, true}) {
        const QString match = unquoted ? u"href="_s : u"href=\""_s;
        const QString end = unquoted ? u">"_s : u"\""_s;
        qsizetype start = 1;
        // A 0-based index, or -1.
        qsizetype found = 0;
        while ((found = InStr(start + 1, LCase(text), match) - 1) >= 0) {
            start = found + 1;
            QString value = text.size() >= 801 ? Mid(text, start, 800) : Mid(text, start);
            value = Mid(value, match.size() + 1);
            const qsizetype cut = InStr(value, end);
            targets.append(Trim(cut > 0 ? Left(value, cut - 1) : value));
        }
    }
    return targets;
}

} // namespace zephira

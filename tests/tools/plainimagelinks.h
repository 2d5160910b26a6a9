// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/vbtext.h"

#include <QString>
#include <QStringList>

namespace zephira {

// The images of a page, found by a walk without regard to speed, as a reference for the real one.

inline QString plainURLFromTag(const QString &tag)
{
    using namespace Qt::StringLiterals;
    QString url;
    bool inValue = false;
    for (qsizetype i = 1; i <= tag.size(); ++i) {
        const QString sign = Mid(tag, i, 1);
        if (!inValue && LCase(Mid(tag, i, 3)) == u"src") {
            inValue = true;
            i += 3;
            if (Mid(tag, i + 1, 1) == u"\"")
                ++i;
        } else if (inValue) {
            if (sign == u" " || sign == u">" || sign == u"\"")
                break;
            url += sign;
        }
    }
    return url;
}

/// The addresses alone, without the unused slot.
inline QStringList plainLinksFromHTML(const QString &html)
{
    using namespace Qt::StringLiterals;
    QStringList urls;
    qsizetype position = 0;
    while ((position = InStr(position + 1, LCase(html), u"<img"_s)) > 0) {
        const qsizetype end = InStr(position, html, u">"_s);
        const QString url = plainURLFromTag(Mid(html, position, end - position));
        if (!url.isEmpty())
            urls.append(url);
    }
    return urls;
}

} // namespace zephira

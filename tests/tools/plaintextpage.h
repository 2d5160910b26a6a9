// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/textlines.h"
#include "tools/textpage.h"

namespace zephira {

/// The page of a text, line by line, as a reference for the real function.
inline QByteArray plainTextPage(const QString &text, const TextPageLook &look)
{
    using namespace Qt::StringLiterals;
    const QString nl = u"\r\n"_s;
    const auto orElse = [](const QString &value, const QString &fallback) {
        return value.isEmpty() ? fallback : value;
    };
    QStringList written{nl + u"<HTML>"_s, nl + u"<HEAD>"_s,
                        nl + u"<TITLE>"_s + orElse(look.title, u"No Document Title"_s) + u"</TITLE>"_s,
                        nl + u"</HEAD>"_s,
                        nl + u"<BODY bgcolor="_s + orElse(look.backColour, u"white"_s) + u" text="_s
                            + orElse(look.textColour, u"black"_s) + u'>'};
    const QStringList lines = textLines(text);
    for (const QString &line : lines)
        written.append(line + u"<BR>"_s);
    written.append({nl, nl + u"</BODY>"_s, u"</HTML>"_s});
    return (written.join(nl) + nl).toUtf8();
}

} // namespace zephira

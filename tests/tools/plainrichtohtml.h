// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/richtohtml.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace zephira {

/// The markup one character after another, as the rules are told, as a reference for the real function.
inline QString plainRichToHtml(const std::vector<FormattedRun> &runs)
{
    using namespace Qt::StringLiterals;
    QString html;
    int alignment = -1;
    bool bold = false;
    bool underline = false;
    bool italic = false;
    bool strikethrough = false;
    std::optional<QString> fontName;
    std::optional<quint32> colour;
    const auto turn = [&html](bool &memory, bool now, const QString &on, const QString &off) {
        if (memory != now)
            html += now ? on : off;
        memory = now;
    };
    for (const auto &[text, format] : runs) {
        for (const QChar character : text) {
            if (alignment != static_cast<int>(format.alignment)) {
                alignment = static_cast<int>(format.alignment);
                html += QStringList{u"<p align=left>"_s, u"<p align=right>"_s, u"<p align=center>"_s}[alignment];
            }
            turn(bold, format.bold, u"<b>"_s, u"</b>"_s);
            turn(underline, format.underline, u"<u>"_s, u"</u>"_s);
            turn(italic, format.italic, u"<i>"_s, u"</i>"_s);
            turn(strikethrough, format.strikethrough, u"<s>"_s, u"</s>"_s);
            if (fontName != format.fontName)
                html += u"<font face=\"%1\">"_s.arg(format.fontName);
            fontName = format.fontName;
            if (colour != format.colour)
                html += u"<font color=#%1>"_s.arg(RGBtoHEX(format.colour));
            colour = format.colour;
            html += character;
        }
    }
    return html;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/errorstyles.h"
#include "core/vbtext.h"

#include <QString>
#include <QStringList>

namespace zephira {

// A straightforward implementation of the source formatter without regard to speed, as a reference for the real one.

inline QString plainTrimAroundTags(QString text)
{
    using namespace Qt::StringLiterals;
    const QString steps[][2] = {
        {u" >"_s, u">"_s}, {u"< "_s, u"<"_s}, {u"> <"_s, u"><"_s}, {u"> "_s, u">"_s}, {u" <"_s, u"<"_s},
    };
    for (const auto &[find, replacement] : steps)
        text.replace(find, replacement);
    return text;
}

inline QString plainCompact(QString text)
{
    using namespace Qt::StringLiterals;
    text.replace(u"\r\n"_s, QString());
    text.replace(u"\t"_s, u" "_s);
    for (const int blanks : {5, 4, 3, 2})
        text.replace(QString(blanks, u' '), u" "_s);
    return plainTrimAroundTags(text);
}

inline QString plainSimple(const QString &text)
{
    using namespace Qt::StringLiterals;
    return plainCompact(text).replace(u"><"_s, u">\r\n<"_s);
}

inline QString plainNextTagText(const QString &text, qsizetype position)
{
    using namespace Qt::StringLiterals;
    const qsizetype start = InStr(position + 1, text, u"<"_s);
    const qsizetype end = InStr(start + 1, text, u">"_s);
    return Mid(text, start, end - start + 1);
}

inline QString plainTagNameOf(const QString &tagText)
{
    using namespace Qt::StringLiterals;
    if (Mid(tagText, 2, 3) == u"!--")
        return u"!--"_s;
    const qsizetype blank = InStr(tagText, u" "_s);
    return Mid(tagText, 2, (blank == 0 ? InStr(tagText, u">"_s) : blank) - 2);
}

inline QString plainTabs(qsizetype level)
{
    using namespace Qt::StringLiterals;
    if (level < 0)
        throw HandlerError{u"Invalid procedure call or argument"_s};
    return QString(level, u'\t');
}

inline QString plainIndentTags(const QString &text)
{
    using namespace Qt::StringLiterals;
    const QStringList flat{u"br"_s, u"hr"_s,  u"img"_s,   u"meta"_s,     u"applet"_s,
                           u"p"_s,  u"!--"_s, u"input"_s, u"!doctype"_s, u"area"_s};
    qsizetype position = 0;
    qsizetype level = 0;
    QString result;
    if (Left(text, 1) != u"<") {
        const qsizetype first = InStr(text, u"<"_s);
        result = Left(text, first == 0 ? text.size() : first);
    }
    do {
        const qsizetype closing = InStr(position + 1, text, u"</"_s);
        const qsizetype opening = InStr(position + 1, text, u"<"_s);
        const bool isClosing = closing != 0 && closing <= opening;
        position = isClosing ? closing : opening;
        qsizetype next = InStr(position + 1, text, u"<"_s);
        if (next == 0)
            next = text.size() + 1;
        if (isClosing)
            --level;
        ignoringErrors({
            [&] { result = result + u"\r\n"_s + plainTabs(level) + Mid(text, position, next - position); },
            [&] {
                if (!isClosing && !flat.contains(LCase(plainTagNameOf(plainNextTagText(text, position)))))
                    ++level;
            },
        });
    } while (position > 0);
    return result;
}

inline QString plainHierarchical(QString text)
{
    using namespace Qt::StringLiterals;
    text.replace(u"\r\n"_s, QString());
    text.replace(u"\t"_s, QString());
    return plainTrimAroundTags(plainIndentTags(text));
}

} // namespace zephira

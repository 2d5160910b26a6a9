// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/vbtext.h"
#include "panes/outline.h"

#include <QStringList>

#include <vector>

namespace zephira {

// A straightforward implementation of the outline's scan without regard to speed, as a reference for the real one.

inline QString plainTagAttribute(const QString &attributeName, const QString &innerText)
{
    using namespace Qt::StringLiterals;
    const QString pattern = UCase(attributeName) + u"="_s;
    const qsizetype p = CInt(static_cast<double>(innerText.isEmpty() ? 0 : InStr(1, UCase(innerText), pattern)));
    if (p == 0)
        return innerText;
    qsizetype q = InStr(p, innerText, u" "_s);
    if (q == 0)
        q = innerText.size();
    QString value = Trim(Mid(innerText, p + attributeName.size() + 1, q - p - attributeName.size()));
    for (const QString &quote : {u"\""_s, u"'"_s}) {
        if (Left(value, 1) == quote) {
            value = Mid(value, 2);
            break;
        }
    }
    for (const QString &quote : {u"\""_s, u"'"_s}) {
        if (!value.isEmpty() && Right(value, 1) == quote) {
            value = Left(value, value.size() - 1);
            break;
        }
    }
    return value;
}

class PlainOutline
{
public:
    std::vector<OutlineLeaf> leaves;

    /// Raises HandlerError; the leaves before the error stay.
    void parse(const QString &text)
    {
        using namespace Qt::StringLiterals;
        using enum OutlineGroup;
        qsizetype position = 0;
        bool inBlock = false;
        for (;;) {
            const qsizetype lt = InStr(position + 1, text, u"<"_s);
            const qsizetype gt = InStr(lt + 1, text, u">"_s);
            position = gt;
            if (lt == 0 || gt == 0)
                return;
            const QString inner = Mid(text, lt + 1, gt - lt - 1);
            const qsizetype blank = InStr(inner, u" "_s);
            const QString written = Trim(blank == 0 ? inner : Left(inner, blank));
            const auto add = [&](OutlineGroup group, const QString &caption) {
                leaves.push_back({group, caption, inner, lt - 1});
            };
            if (Left(written, 2) == u"!-") {
                if (inBlock)
                    continue;
                QString caption = Trim(Mid(inner, 4, inner.size() - 6));
                if (caption.size() > 9)
                    caption = Left(caption, 9) + u"..."_s;
                add(Comments, caption);
                continue;
            }
            const QString name = LCase(written);
            if (name == u"/script" || name == u"/style")
                inBlock = false;
            if (Left(written, 1) == u"/")
                continue;
            const QStringList none{u"p"_s,  u"br"_s,         u"li"_s,   u"html"_s, u"b"_s,  u"i"_s,  u"u"_s,
                                   u"em"_s, u"blockquote"_s, QString(), u"tr"_s,   u"td"_s, u"th"_s, u"center"_s};
            if (name == u"body" || name == u"head") {
                add(Document, UCase(written));
            } else if (name == u"img" || name == u"bgsound") {
                add(Images, plainTagAttribute(u"src"_s, inner));
            } else if (name == u"a") {
                const QString target = plainTagAttribute(u"href"_s, inner);
                if (target != inner)
                    add(Links, target);
                else
                    add(Bookmarks, plainTagAttribute(u"name"_s, inner));
            } else if (name == u"table") {
                add(Tables, written);
            } else if (name == u"form" || name == u"input" || name == u"select" || name == u"textarea") {
                add(Forms, first(inner, {u"name"_s, u"id"_s, u"value"_s, u"type"_s}, inner));
            } else if (name == u"font") {
                add(Styles, first(inner, {u"face"_s, u"color"_s, u"size"_s}, u"FONT"_s));
            } else if (name == u"div") {
                add(Divisions, first(inner, {u"id"_s}, u"DIV"_s));
            } else if (name == u"script") {
                add(Scripts, first(inner, {u"src"_s, u"language"_s, u"id"_s, u"type"_s}, inner));
                inBlock = true;
            } else if (name == u"layer") {
                add(Layers, first(inner, {u"name"_s, u"id"_s}, inner));
            } else if (name == u"title") {
                const qsizetype closing = CInt(static_cast<double>(InStr(position, text, u"</"_s)));
                const QString chunk = Trim(Mid(text, lt, closing - lt + 9));
                const QString tagText = Mid(chunk, 2, chunk.size() - 3);
                leaves.push_back({Title, Mid(tagText, 7, tagText.size() - 13), tagText, lt - 1});
            } else if (name.size() == 2 && name[0] == u'h' && name[1] >= u'1' && name[1] <= u'6') {
                add(Headings, UCase(written));
            } else if (name == u"ol" || name == u"ul" || name == u"d" || name == u"dt") {
                add(Lists, UCase(written));
            } else if (none.contains(name)) {
                continue;
            } else if (name == u"meta" || name == u"!doctype") {
                QString caption = first(inner, {u"name"_s, u"http-equiv"_s}, inner);
                if (caption == inner && Left(caption, 1) == u"!")
                    caption = u"!DOCTYPE"_s;
                add(Declare, caption);
            } else {
                add(Other, written);
                if (name == u"style")
                    inBlock = true;
            }
        }
    }

private:
    static QString first(const QString &inner, const QStringList &attributes, const QString &otherwise)
    {
        for (const QString &attribute : attributes) {
            const QString value = plainTagAttribute(attribute, inner);
            if (value != inner)
                return value;
        }
        return otherwise;
    }
};

} // namespace zephira

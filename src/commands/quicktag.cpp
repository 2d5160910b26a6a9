// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/quicktag.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace zephira {

QString quickTagText(const QuickTag &tag, const QString &selection)
{
    switch (tag.kind) {
    case TagKind::Wrap:
        return tag.before % selection % tag.after;
    case TagKind::Behind:
        return selection % tag.before;
    case TagKind::Replace:
        return tag.before.toString();
    default:
        return {};
    }
}

QString mailLinkText(const QString &selection, const QString &address)
{
    return selection + u"<a href=\"mailto:"_s + address + u"\">Click here to mail "_s + address + u"</a>"_s;
}

QString soundText(const QString &path)
{
    return u"<EMBED SRC=\""_s + path + u"\" height=2 width=2 autostart=true hidden=true>"_s;
}

QString headingText(int size, const QString &selection)
{
    const QString element = u'h' + QString::number(size);
    return u'<' + element + u'>' + selection + u"</"_s + element + u'>';
}

QString pageText(const QString &text)
{
    return u"<html>\r\n"_s + text + u"\r\n</html>"_s;
}

QString titledText(const QString &text, const QString &title)
{
    QString result = text;
    return result.replace(u"<head>"_s, u"<head>\r\n<title>"_s + title + u"</title>\r\n"_s, Qt::CaseInsensitive);
}

} // namespace zephira

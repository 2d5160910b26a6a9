// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/linkmarkup.h"

#include "wizards/attribute.h"

using namespace Qt::StringLiterals;

namespace zephira {

QStringList linkPrefixes()
{
    return {u"Http://"_s, u"ftp://"_s, u"file://"_s, u"gopher://"_s, u"https://"_s,
            u"mailto:"_s, u"news:"_s,  u"telnet:"_s, u"wais:"_s,     u"View -Source:"_s};
}

QString withPrefix(const QString &prefix, const QString &address)
{
    return linkPrefixes().contains(address, Qt::CaseInsensitive) ? prefix : prefix + address;
}

QString linkMarkup(const LinkFields &fields)
{
    const QString status = fields.statusText.isEmpty()
        ? QString()
        : attribute(u"onMouseOver"_s, u"window.status='"_s + fields.statusText + u"'; return true;"_s)
            + attribute(u"onMouseOut"_s, u"window.status=''; return true;"_s);
    return u"<a"_s + attribute(u"href"_s, fields.address) + attribute(u"target"_s, fields.target)
        + attribute(u"name"_s, fields.name) + status + attribute(u"title"_s, fields.title) + u'>' + fields.text
        + u"</a>"_s;
}

QString imageMarkup(const ImageFields &fields)
{
    return u"<img"_s + attribute(u"src"_s, fields.usesFullName() ? fields.file : fields.reference)
        + attribute(u"width"_s, fields.width) + attribute(u"height"_s, fields.height)
        + attribute(u"alt"_s, fields.alternative) + attribute(u"border"_s, fields.border) + u">\r\n"_s;
}

} // namespace zephira

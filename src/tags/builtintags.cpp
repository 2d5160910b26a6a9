// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/builtintags.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QChar bareMark = u'!';

// Users know these captions and keys, including `MARAQUEE`, the capital in `<Frame>` and the second `id` of `script`.
constexpr BuiltInTag tags[] = {
    {u"<a></a>", u"ANCHOR", u"href target name title rel rev type charset hreflang media style id class"},
    {u"<applet></applet>", u"Applet", u"code codebase name title style id class archive alt align height width"},
    {u"<area>", u"Area", u"shape coords href style title id class target nohref"},
    {u"<base>", u"Base", u"href id target"},
    {u"<basefont>", u"Basefont", u"id face size color"},
    {u"<bgsound>", u"Bgsound", u"src loop style id class title"},
    {u"<body></body>", u"Body", u"id class title background bgcolor text link vlink alink leftmargin topmargin"},
    {u"<col>", u"Col", u"align span style id class title"},
    {u"<colgroup>", u"Colgroup", u"align valign span style id class title"},
    {u"<div></div>", u"div", u"style id class title align"},
    {u"<embed>", u"Embed", u"src height width hidden style id class"},
    {u"<font></font>", u"Font", u"face size color style id class title"},
    {u"<form></form>", u"Form", u"action target method enctype style id class title"},
    {u"<Frame>", u"Frame",
     u"src name scrolling marginwidth framespacing marginheight !noresize style id class title frameborder "
     "bordercolor"},
    {u"<frameset></frameset>", u"Frameset",
     u"rows cols frameborder framespacing border bordercolor style id class title"},
    {u"<h1></h1>", u"h1", u"title align style id class"},
    {u"<h2></h2>", u"h2", u"title align style id class"},
    {u"<h3></h3>", u"h3", u"title align style id class"},
    {u"<hr>", u"HR", u"align size color width !noshade style id class title"},
    {u"<iframe></iframe>", u"Iframe",
     u"src name scrolling align height width marginwidth marginheight frameborder style id class title"},
    {u"<img>", u"IMG",
     u"src align alt border height width hspace vspace ismap usemap dynsrc start loop !controls loopdelay "
     "lowsrc style id class"},
    {u"<input>", u"INPUT",
     u"type name value align size maxlength tabindex !notab !checked src !border !width !height !vspace "
     "!hspace accept style id class title"},
    {u"<link>", u"LINK", u"rel href type title"},
    {u"<map></map>", u"MAP", u"name style id class title"},
    {u"<marquee></marquee>", u"MARAQUEE",
     u"behavior direction align bgcolor height width hspace vspace loop scrollamount scrolldelay style id "
     "class title"},
    {u"<meta>", u"META", u"id http-equiv name content"},
    {u"<multicol>", u"MULTICOL", u"cols width gutter style id class title"},
    {u"<p>", u"PARAGRAPH", u"align style id class title"},
    {u"<param></param>", u"Param", u"id name value type valuetype"},
    {u"<script></script>", u"SCRIPT", u"id type language src for defer runat id charset"},
    {u"<sound></sound>", u"SOUND", u"src loop delay style id class title"},
    {u"<span></span>", u"SPAN", u"style id class title align"},
    {u"<style></style>", u"STYLE", u"type"},
    {u"<table></table>", u"TABLE",
     u"align cellpadding border valign cellspacing !nowrap background bgcolor bordercolor bordercolorlight "
     "bordercolordark cols clear frame rules style id class title"},
    {u"<td></td>", u"TD",
     u"bgcolor bordercolor bordercolordark bordercolorlight background width height rowspan colspan align "
     "valign nowrap style id class title"},
    {u"<th></th>", u"TH",
     u"width height rowspan colspan align valign nowrap bgcolor bordercolor bordercolordark bordercolorlight "
     "background style id class title"},
    {u"<tr></tr>", u"TR",
     u"bgcolor bordercolor bordercolorlight bordercolordark align valign nowrap style id class title"},
};

QString caption(const QString &attribute)
{
    if (attribute.startsWith(bareMark))
        return u' ' + attribute.sliced(1);
    return u' ' + attribute + u"=\"\""_s;
}

} // namespace

std::span<const BuiltInTag> builtInTags()
{
    return tags;
}

QStringList attributeCaptions(const BuiltInTag &tag)
{
    QStringList captions = tag.attributes.toString().split(u' ');
    std::ranges::transform(captions, captions.begin(), caption);
    return captions;
}

} // namespace zephira

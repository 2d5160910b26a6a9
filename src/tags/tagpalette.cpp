// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/tagpalette.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr PaletteTag tags[] = {
    {u"<textarea>", u"<textarea> </textarea>"},
    {u"<img>", u"<img></img>"},
    {u"<a>", u"<a href=\"></a>"},
    {u"<br>", u"<br>"},
    {u"<blink>", u"<blink> </blink>"},
    {u"<center>", u"<center> </center>"},
    {u"<dir>", u"<dir> </dir>"},
    {u"<div>", u"<div> </div>"},
    {u"<head>", u"<head> </head>"},
    {u"<html>", u"<html> </html>"},
    {u"<menu>", u"<menu> </menu>"},
    {u"<nobr>", u"<nobr> </nobr>"},
    {u"<noembad>", u"<noembad> </noembad>"},
    {u"<nolayer>", u"<nolayer> </nolayer>"},
    {u"<plain text>", u"<plain text> </plain text>"},
    {u"<strong>", u"<strong> </strong>"},
    {u"<strike>", u"<strike> </strike>"},
    {u"<title>", u"<title> </title>"},
    {u"<u>", u"<u> </u>"},
    {u"<ul>", u"<ul> </ul>"},
    {u"<body>", u"<body></body>"},
    {u"<font>", u"<font></font>"},
    {u"<frame>", u"<frame> </frame>"},
    {u"<H1>", u"<H1> </H1>"},
    {u"<H2>", u"<H2> </H2>"},
    {u"<H3>", u"<H3> </H3>"},
    {u"<H4>", u"<H4> </H4>"},
    {u"<H5>", u"<H5> </H5>"},
    {u"<H6>", u"<H6> </H6>"},
    {u"<hr>", u"<hr></hr>"},
    {u"<table>", u"<table></table>"},
    {u"<tr>", u"<tr></tr>"},
    {u"<td>", u"<td></td>"},
    {u"<th>", u"<th> </th>"},
    {u"<Input type=\"button\">", u"<Input type=\"button\">"},
    {u"<Input type=\"checkbox\">", u"<Input type=\"checkbox\">"},
    {u"<Input type=\"File\">", u"<Input type=\"File\">"},
    {u"<Input type=\"hidden\">", u"<Input type=\"hidden\">"},
    {u"<Input type=\"image\">", u"<Input type=\"image\">"},
    {u"<Input type=\"password\">", u"<Input type=\"password\">"},
    {u"<Input type=\"radio\">", u"<Input type=\"radio\">"},
    {u"<Input type=\"reset\">", u"<Input type=\"reset\">"},
    {u"<Input type=\"submit\">", u"<Input type=\"submit\">"},
    {u"<Input type=\"text\">", u"<Input type=\"text\">"},
};

} // namespace

std::span<const PaletteTag> paletteTags()
{
    return tags;
}

QStringView paletteMarkup(QStringView item)
{
    const auto tag = std::ranges::find(tags, item, &PaletteTag::item);
    return tag == std::end(tags) ? QStringView() : tag->markup;
}

} // namespace zephira

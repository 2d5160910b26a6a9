// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/palettetable.h"

#include <iterator>

namespace zephira {

namespace {

// The helper functions reduce the tables to what differs from row to row. "\r\n" is the document's line end.

constexpr QuickTag wrap(QStringView key, QStringView icon, QStringView tip, QStringView before, QStringView after)
{
    return {key, TagKind::Wrap, tip, icon, before, after};
}

constexpr QuickTag behind(QStringView key, QStringView icon, QStringView tip, QStringView text)
{
    return {key, TagKind::Behind, tip, icon, text};
}

constexpr QuickTag replace(QStringView key, QStringView icon, QStringView tip, QStringView text)
{
    return {key, TagKind::Replace, tip, icon, text};
}

constexpr QuickTag form(QStringView key, QStringView icon, QStringView tip, QStringView name,
                        Refusal refusal = Refusal::None)
{
    return {key, TagKind::Form, tip, icon, name, {}, refusal};
}

constexpr QuickTag special(QStringView key, QStringView icon, QStringView tip, TagKind kind,
                           Refusal refusal = Refusal::None)
{
    return {key, kind, tip, icon, {}, {}, refusal};
}

constexpr QuickTag separator{};

constexpr QuickTag tools[] = {
    {u"tidy", TagKind::Tidy, u"Tidy your HTML/XML code with Zepphira technology", u"edit-clear-all", u"frmvalidate"},
    special(u"spell", u"tools-check-spelling", u"Click for information on spelling", TagKind::Spelling, Refusal::Tools),
    form(u"color", u"color-picker", u"Show color dialog", u"ColorPick"),
    form(u"imagemap", u"#imagemap", u"Create an Image map", u"ImageMap"),
    form(u"link", u"insert-link", u"Insert Link", u"frmlinkwiz"),
    special(u"maillink", u"mail-message-new", u"Insert Mail Link", TagKind::MailLink),
    special(u"help", u"help-contents", u"Help", TagKind::Help),
    form(u"options", u"configure", u"Options dialog", u"frmOptions"),
};

constexpr QuickTag common[] = {
    wrap(u"paragraph", u":\u00b6", u"Paragraph", u"<p>", u"</p>"),
    wrap(u"comment", u":<!-- -->", u"Comment", u"<!-- ", u" -->"),
    behind(u"break", u"#return", u"Insert Break", u"<br>"),
    form(u"link", u"insert-link", u"Insert Link", u"frmlinkwiz"),
    special(u"sound", u"player-volume", u"Insert a Sound into the document", TagKind::Sound),
    wrap(u"anchor", u"#anchor", u"Insert an anchor", u"<a>", u"</a>"),
    form(u"doctype", u":doctype", u"Insert Doc Type tag", u"doctype", Refusal::Tools),
    special(u"html", u":html", u"Insert HTML tag", TagKind::WholeDocument, Refusal::WysiwygLower),
    wrap(u"head", u":head", u"Insert Head Tag", u"<head>\r\n", u"</head>"),
    form(u"meta", u":meta", u"Insert Meta Tags Wizard", u"frmMeta", Refusal::WysiwygLower),
    special(u"title", u":title", u"Insert Title", TagKind::Title, Refusal::WysiwygMode),
    replace(u"body", u":body", u"Insert Body Tags", u"\r\n<body>\r\n\r\n\r\n\r\n</body>"),
    replace(u"base", u":base", u"Base", uR"(<base href="">)"),
    form(u"picture", u"insert-image", u"Insert Picture", u"ImageWizard"),
};

constexpr QuickTag text[] = {
    wrap(u"paragraph", u":\u00b6", u"Format Selected Text as Paragraph", u"<p>", u"</p>"),
    wrap(u"div", u":div", u"Format Selected Text as DIV", u"<div>", u"</div>"),
    wrap(u"span", u":span", u"Format Selected Text as SPAN", u"<span>", u"</span>"),
    wrap(u"big", u"format-font-size-more", u"Format Selected Text as Big", u"<big>", u"</big>"),
    wrap(u"small", u"format-font-size-less", u"Format Selected Text as Smaller", u"<small>", u"</small>"),
    special(headingsKey, u":H1\u20136", u"Format Selected Text as Heading Size...", TagKind::Headings),
    form(u"wizard", u"tools-wizard", u"Text Wizard", u"frmtextthtml", Refusal::WysiwygMode),
    wrap(u"insert", u"format-text-underline", u"Format Selected Text as inserted text", u"<ins>", u"</ins>"),
    wrap(u"pre", u":pre", u"Format Selected Text as PRE", u"<pre>", u"</pre>"),
    wrap(u"tt", u":tt", u"Format Selected Text as TelyType", u"<tt>", u"</tt>"),
    wrap(u"strike", u"format-text-strikethrough", u"Format Selected Text as Strike through", u"<s>", u"</s>"),
    wrap(u"address", u":@", u"Format text as Address", u"<address>", u"</address>"),
    wrap(u"block", u"format-text-blockquote", u"Format text as a block quote", u"<blockquote>", u"</blockquote>"),
    wrap(u"define", u":dfn", u"Format Selected Text as DEFINE", u"<dfn>", u"</dfn>"),
    wrap(u"code", u"format-text-code", u"Format text as code", u"<code>", u"</code>"),
    wrap(u"cite", u":cite", u"Format text as a cite", u"<cite>", u"</cite>"),
};

constexpr QuickTag tables[] = {
    form(u"table", u"insert-table", u"Insert Table Dialog", u"frmTable", Refusal::WysiwygMode),
    form(u"qtable", u"#grid", u"Quick Table", u"frmTables", Refusal::WysiwygMode),
    wrap(u"td", u":td", u"Insert Table Data", u"<td>", u"</td>"),
    wrap(u"tr", u":tr", u"Insert Table Row", u"<tr>", u"</tr>"),
    wrap(u"th", u":th", u"Insert Table Header", u"<th>", u"</th>"),
    wrap(u"tabletags", u":table", u"Insert Table Tags", u"<table>\r\n", u"\r\n</table>"),
};

constexpr QuickTag style[] = {
    behind(u"styleblock", u":{ }", u"Insert Style Block", u"<style type=\"text/css\">\r\n<!-- \r\n\r\n-->\r\n</style>"),
    special(u"selector", u":.name", u"Insert Style Selector", TagKind::Selector, Refusal::WysiwygMode),
    special(u"prop", u":a: b", u"Insert Style Property", TagKind::Property),
    special(u"topstyle", u"document-edit", u"Edit in TopStyle", TagKind::Missing, Refusal::WysiwygMode),
};

constexpr QuickTag frames[] = {
    form(u"framewiz", u"tools-wizard", u"View the Frames Wizard", u"frmFramesWiz"),
    wrap(u"frameset", u"#frameset", u"Insert a FRAMESET tag", u"<frameset>", u"</frameset>"),
    wrap(u"frame", u"#frame", u"Insert a FRAME tag", u"<frame>", u"</frame>"),
    wrap(u"base", u":base", u"Inserts a BASE TARGET tag", u"<base href=\"", u"\" target=\"\">"),
    form(u"iframe", u"#iframe", u"Insert iFrame Dialog", u"frmiframe"),
    wrap(u"noframe", u"#noframe", u"Insert NOFRAME tags", u"<noframe>", u"</noframe>"),
};

constexpr QuickTag lists[] = {
    wrap({}, u"format-list-unordered", u"Bullet List", u"<ul>", u"</ul>"),
    wrap({}, u":dd", u"Definition", u"<dd>", u"</dd>"),
    wrap({}, u":li", u"List", u"<li>", u"</li>"),
    wrap({}, u":menu", u"Menu List", u"<menu>", u"</menu>"),
    behind({}, u":dl", u"Last Definition", u"<dl>\r\n<dt><dd>\r\n</dl>"),
    wrap({}, u"format-list-ordered", u"Numbered List", u"<ol>", u"</ol>"),
    wrap({}, u":dt", u"Definition Term", u"<dt>", u"</dt>"),
};

constexpr QuickTag forms[] = {
    form({}, u"tools-wizard", u"Form Wizard", u"FormWizard"),
    wrap({}, u"#form", u"Form Tags", u"<form action=\"\">", u"</form>"),
    separator,
    wrap({}, u"#button", u"Button", u"<input type=\"Button\" value=\"", u"\">"),
    wrap({}, u"#checkbox", u"Check Box", u"<input type=\"checkbox\" name=\"\" value=\"", u"\">"),
    wrap({}, u"#radio", u"Option", u"<input type=\"radio\" name=\"\" value=\"", u"\">"),
    replace({}, u"#combo", u"Drop Down List", u"<select name=\"\">\r\n    <option>\r\n    <option>\r\n</select>"),
    behind({}, u"#listbox", u"List", u"<select name=\"\" size=\"\">\r\n    <option>\r\n    <option>\r\n</select>"),
    behind({}, u"insert-image", u"Form Image", uR"(<input name="" type="image" src="" border="0">)"),
    separator,
    wrap({}, u"document-open", u"Browse For...", u"<input type=\"file\" value=\"", u"\">"),
    // Password, text and hidden have no blank before "value=": these texts are fixed, and browsers read them anyway.
    wrap({}, u"#password", u"Password", u"<input name=\"\" type=\"password\"value=\"", u"\">"),
    replace({}, u"#textfield", u"Text", uR"(<input name="" type="text"value="">)"),
    wrap({}, u"#hidden", u"Hidden", u"<input name=\"\" type=\"hidden\"value=\"", u"\">"),
    behind({}, u"#textarea", u"Text Area", uR"(<textarea name="" rows=7 cols=10></textarea>)"),
    separator,
    behind({}, u"dialog-ok-apply", u"Submit Button", uR"(<input type="submit">)"),
    behind({}, u"edit-reset", u"Reset Button", uR"(<input type="reset">)"),
};

constexpr QuickTag scripts[] = {
    behind({}, u":applet", u"Java Applet",
           uR"(<applet code="code name" codebase="code base" name="name" alt="alt text" width="" height="">)"),
    behind(
        {}, u"dialog-scripts", u"Define Javascript",
        uR"~(<script language="VBScript / LiveScript / Javascript / PHP / tcl" src="source" type="text/(language)">)~"
        "\r\n<!--\r\n\r\n//-->\r\n</script>"),
    wrap({}, u"#noscript", u"No Script", u"<noscript>", u"</noscript>"),
    behind({}, u"#alert", u"Alert Dialog", u"<script language=\"javascript\">\r\n    alert(\"warning\");\r\n</script>"),
    behind({}, u"question", u"Confirmation Dialog",
           u"<script language=\"javascript\">\r\n    confirm(\"are you sure?\");\r\n</script>"),
    behind({}, u":write()", u"Document.Write", u"document.write(\"\")"),
    form({}, u"view-list-tree", u"Object / Event Tree", u"oebrowser"),
    behind({}, u":object", u"Active X Component", uR"(<object id="" classid="" width= height= data=""></object>)"),
    behind({}, u":embed", u"Embed Object", uR"(<embed src=""></embed>)"),
    behind({}, u":swf", u"Insert Flash Support",
           u"<object classid=\"clsid:d27cdb6e-ae6d-11cf-96b8-444553540000\""
           " codebase=\"https://download.macromedia.com/pub/shockwave/cabs/flash/swflash.cab\""
           " width=\"32\" height=\"32\">\r\n"
           "    <param name=\"src\" value=\"flash-file.swf\">\r\n"
           "    <embed src=\"flash-file.swf\" pluginspage=\"https://www.macromedia.com/go/getflashplayer\""
           "type=\"application/x-shockwave-flash\"width=\"32\"height=\"32\">\r\n"
           "    </embed>\r\n"
           "</object>"),
    behind({}, u":dcr", u"Insert Shockwave Support",
           u"<object classid=\"clsid:166b1bca-3f9c-11cf-8075-444553540000\""
           " codebase=\"https://download.macromedia.com/pub/shockwave/cabs/director/sw.cab\""
           " width=\"32\" height=\"32\">\r\n"
           "    <param name=\"src\" value=\"shockwave-file.swf\">\r\n"
           "    <embed src=\"sockwave-file.swf\" pluginspage=\"https://www.macromedia.com/shockwave/download/\""
           "type=\"application/x-director\"width=\"32\"height=\"32\">\r\n"
           "    </embed>\r\n"
           "</object>"),
    behind(
        {}, u"#layer", u"Insert DHTML Layer",
        uR"(<div id="layer1" style="position:absolute; left:?px; top:?px; width:?px; height:?px; z-index:1"></div>)"),
};

constexpr QuickTag cfml[] = {
    form({}, u"view-list-details", u"Server Variables", u"frmcsv"),
    behind({}, u":if", u"If block", u"<cfif ></cfif>"),
    behind({}, u":else", u"Else block", u"<cfelse>"),
    behind({}, u":elseif", u"Else If Block", u"<cfelseif>"),
    behind({}, u":set", u"CFSET", u"<cfset >"),
    behind({}, u":cookie", u"CF Cookie",
           uR"(<cfcookie name="name" value="value" expires="now/never" domain="domain" path="path">)"),
    behind({}, u":SQL", u"CF Query",
           uR"(<cfquery name="name" datasource="source" maxrows=rows dbtype="ODBC" blockfactor="block factor" )"
           R"(timeout="timeout" username="username" password="password" dbserver="server" dbname="DBname">)"
           "sql statement</cfquery>"),
    behind({}, u"mail-message", u"CF Mail",
           uR"(<cfmail to="to" from="from" subject="subject" cc="cc" bcc="bcc">body</cfmail>)"),
    behind({}, u"document-new", u"CF File",
           uR"(<cffile action="UPLOAD" filefield="field" destination="path" nameconflict="ERROR" accept="accept" )"
           R"(attributes="atts" mode="mode">)"),
    behind({}, u"document-open-folder", u"CF DIRECTORY",
           uR"(<cfdirectory action="LIST" directory="dir" name="query name" filter="filter" sort="sort">)"),
    behind({}, u"insert-table", u"CF Table",
           uR"(<cftable query="query" maxrows="max" startrow="start row" colspacing="column spacing"></cftable>)"),
    behind({}, u":col", u"CF Column", uR"(<cfcol text="content" header="caption" width="width" align="CENTER">)"),
    behind({}, u":loop", u"Loop", uR"(<cfloop index="index" from="from" to="to" step="step"></cfloop>)"),
    behind({}, u":include", u"Include", uR"(<cfinclude template="temp">)"),
    behind({}, u"go-jump", u"CF Location", uR"(<cflocation url="url" addtoken="No">)"),
    behind({}, u":out", u"CF OUT", u"<cfoutput></cfoutput>"),
    behind({}, u":##", u"##", u"##"),
    behind({}, u":<!--- --->", u"<!---  --->", u"<!---  --->"),
    behind({}, u":switch", u"CF Switch", uR"(<cfswitch expression="expression"></cfswitch>)"),
    behind({}, u":case", u"CF Case", uR"(<cfcase value="value" delimiters=""></cfcase>)"),
    behind({}, u":default", u"CF Default Case", u"<cfdefaultcase></cfdefaultcase>"),
    behind({}, u"process-stop", u"CF Abort", uR"(<cfabort showerror="show error">)"),
    behind({}, u":break", u"Break", u"<cfbreak>"),
};

constexpr QuickTag asp[] = {
    behind({}, u":include", u"Include File", uR"(<!--#include file=""-->)"),
    behind({}, u":<% %>", u"ASP Tag", u"<%  %>"),
    behind({}, u":<%= %>", u"Output Tag", u"<%=  %>"),
    behind({}, u":if", u"If", u"<% If  %>"),
    behind({}, u":end if", u"End If", u"<% End If %>"),
};

constexpr QuickTag ssi[] = {
    behind({}, u":include", u"Include File", uR"(<!--#include file="" -->)"),
    behind({}, u":exec", u"Execute CGI", uR"(<!--#exec cgi="" -->)"),
    behind({}, u":label", u"Label", uR"(<!--#label="" -->)"),
    behind({}, u":goto", u"GoTo", uR"(<!--#goto="" -->)"),
    behind({}, u":break", u"Break", u"<!--#break -->"),
};

constexpr PaletteToolbar toolbars[] = {
    {u"Tools", tools},     {u"Common", common}, {u"Text", text},   {u"Tables", tables},
    {u"Style", style},     {u"Frames", frames}, {u"Lists", lists}, {u"Forms", forms},
    {u"Scripts", scripts}, {u"CFML", cfml},     {u"ASP", asp},     {u"SSI", ssi},
};

static_assert(std::size(toolbars) == static_cast<std::size_t>(PaletteTab::Ssi) + 1);

} // namespace

std::span<const PaletteToolbar> paletteToolbars()
{
    return toolbars;
}

} // namespace zephira

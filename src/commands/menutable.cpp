// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menutable.h"

namespace zephira {

namespace {

using Kind = MenuItem::Kind;

constexpr MenuItem check(QStringView name, QStringView caption, QStringView shortcut = {}, QStringView statusTip = {})
{
    return {name, caption, shortcut, {}, statusTip, {}, Kind::Check};
}

constexpr MenuItem menu(QStringView name, QStringView caption, std::span<const MenuItem> children)
{
    return {name, caption, {}, {}, {}, {}, Kind::Menu, children};
}

/// An entry that opens a form.
constexpr MenuItem opens(QStringView name, QStringView caption, QStringView form, QStringView icon,
                         QStringView statusTip, QStringView shortcut = {})
{
    return {name, caption, shortcut, icon, statusTip, form};
}

constexpr MenuItem divider(QStringView name = {})
{
    return {name, {}, {}, {}, {}, {}, Kind::Divider};
}

constexpr MenuItem newItems[] = {
    opens(u"mnufromtemp", u"From Template", u"frmselprj", u"document-new-from-template",
          u"Start a document from a template", u"Ctrl+T"),
    {u"mnunewdoc", u"Blank Document", u"Ctrl+N", u"document-new", u"Start an empty document"},
    {u"mnunewwindow", u"Window", u"F12", u"window-new", u"Open another window"},
};

constexpr MenuItem fileItems[] = {
    menu(u"new", u"&New...", newItems),
    {u"open", u"&Open Document", u"Ctrl+O", u"document-open", u"Open a document"},
    divider(),
    {u"save", u"&Save Document", u"Ctrl+S", u"document-save", u"Save the document"},
    {u"saveas", u"Save Document &As", {}, u"document-save-as", u"Save the document under another name"},
    {u"mnusavetemplate",
     u"Save Document as &Template",
     {},
     u"document-save-as-template",
     u"Keep the document as a template for new ones"},
    divider(),
    {u"print", u"&Print", u"Ctrl+P", u"document-print", u"Print the document"},
    {u"clearclip", u"&Clear Clipboard", {}, u"edit-clear-history", u"Empty the clipboard"},
    divider(),
    {u"exit", u"&Exit", {}, u"application-exit", u"Leave at once, without saving"},
};

constexpr MenuItem editItems[] = {
    {u"undo", u"&Undo", u"Ctrl+Z", u"edit-undo", u"Take the last change back"},
    {u"redo", u"&Redo", u"Ctrl+Y", u"edit-redo", u"Make the change again"},
    divider(),
    {u"cut", u"C&ut", u"Ctrl+X", u"edit-cut", u"Move the selection to the clipboard"},
    {u"copy", u"&Copy", u"Ctrl+C", u"edit-copy", u"Copy the selection to the clipboard"},
    {u"paste", u"&Paste", u"Ctrl+V", u"edit-paste", u"Insert the clipboard's text"},
    {u"delete", u"&Delete", u"Del", u"edit-delete", u"Remove the selection"},
    divider(),
    {u"find", u"&Find", u"Ctrl+F", u"edit-find", u"Find a text"},
    {u"findnext", u"Find &Next", u"F3", u"go-down-search", u"Find the text again"},
    {u"mnreplace", u"&Replace", u"Ctrl+R", u"edit-find-replace", u"Find a text and replace it"},
    {u"goto", u"&Go To...", u"Ctrl+G", u"go-jump", u"Go to a line"},
    divider(),
    {u"selectall", u"&Select All", u"Ctrl+A", u"edit-select-all", u"Select the whole text"},
    {u"Timedate", u"&Time/Date", u"F5", u"clock", u"Insert the time and the date behind the selection"},
    divider(),
    {u"mnunextview", u"Next View", u"F8", u"go-next-view", u"Go to the next view of the document"},
};

constexpr MenuItem formatSourceItems[] = {
    {u"mnufcomp", u"Compact", {}, {}, u"Write the source as short as it can be"},
    {u"mnuformath", u"Hierarchical", {}, {}, u"Indent the source by its structure"},
    {u"mnufsimple", u"Simple", {}, {}, u"Give each tag a line"},
};

constexpr MenuItem toolItems[] = {
    opens(u"mnuascwiz", u"Ascii Wizard", u"frmascii", {}, u"The code of a key in three notations"),
    opens(u"mnucp", u"Color Picker", u"ColorPick", u"color-picker", u"Choose a colour"),
    opens(u"colors", u"&Color Spy", u"frmColorSpy", u"crosshairs", u"Read a colour from the screen"),
    opens(u"mnucw", u"Cookie Wizard", u"frmwizcookie", {}, u"Build a script that sets a cookie"),
    opens(u"mnuddg", u"Drop Down Generator", u"frmdropdown", u"#combo", u"Build a drop-down list"),
    opens(u"mnuformwiz", u"Form Wizard", u"FormWizard", u"#form", u"Build a form"),
    menu(u"mnufsc", u"Format Source Code", formatSourceItems),
    opens(u"mnuframewiz", u"Frames Wizard", u"frmFramesWiz", u"#frameset", u"Build a page of frames"),
    opens(u"mnuftpclient", u"&FTP Client", u"frmmainftp", u"folder-sync", u"Move files to and from a server"),
    opens(u"mnuimw", u"Image Wizard", u"ImageWizard", u"insert-image", u"Insert a picture"),
    opens(u"mnuinsbreakd", u"Insert Break...", u"frminsbreak", u"#return", u"Insert a line break with attributes"),
    opens(u"mnule", u"&Link Extractor", u"frmlinkextract", u"view-list-text", u"List the document's links"),
    opens(u"mnumw", u"Marquee Wizard", u"frmwizMarquee", {}, u"Insert a moving text"),
    opens(u"mnuaspredirect", u"Meta Redirect", u"frmRedirect", {}, u"Send visitors on to another page"),
    opens(u"mnumtw", u"Meta Tag Wizard", u"frmMeta", {}, u"Describe the page for search engines"),
    opens(u"mnutblwiz", u"Table Wizard", u"frmTables", u"insert-table", u"Build a table"),
    opens(u"mnuthw", u"&Text File to HTML Wizard", u"frmthcon", {}, u"Turn a text file into a page"),
    opens(u"mnutextwiz", u"Text Wizard", u"frmtextthtml", {}, u"Turn lines of text into markup"),
    opens(u"mnuvbsw", u"VB Statement Wizard", u"frmvbwiz", {}, u"Build a script statement"),
    opens(u"webview", u"&Web Source Viewer", u"frmwebdisp", u"viewhtml", u"Fetch the source of a page", u"Ctrl+W"),
};

constexpr MenuItem optionItems[] = {
    opens(u"main", u"Main Options", u"frmOptions", u"configure", u"Settings of the program"),
    check(u"highlightlines", u"&Highlighted Lines", u"Ctrl+H", u"Highlight the line of the caret"),
    opens(u"fileassociations", u"&Setup File Associations", u"frmfa", {}, u"Choose what opens with this program"),
    {u"font", u"&Font", u"F7", u"preferences-desktop-font", u"Choose the font of the code view"},
    check(u"mnuviewtip", u"View Tip of The Day", {}, u"Show a tip at each start"),
};

constexpr MenuItem pluginItems[] = {
    {u"mnupluginoptions_0", u"No Plugins Installed", {}, {}, {}, {}, Kind::Missing},
};

constexpr MenuItem helpItems[] = {
    {u"helpme", u"&General Help", u"F1", u"help-contents", u"Open the guide"},
    {u"readme", u"&Readme", {}, u"documentinfo", u"Show the read-me file"},
    {u"mnuupdate", u"Update Zephira.", {}, u"system-upgrade", u"Look for a newer version"},
    {u"website", u"Zephira Website", {}, u"internet-services", u"Open the program's site"},
    opens(u"about", u"&About", u"frmAbout", u"help-about", u"About this program", u"F6"),
};

constexpr MenuItem viewItems[] = {
    check(u"ViewSub_0", u"Borders"),
    check(u"ViewSub_1", u"Document Details"),
    check(u"ViewSub_2", u"Preview"),
    check(u"ViewSub_10", u"Snap to Grid"),
};

constexpr MenuItem insertItems[] = {
    {u"InsertSub_0", u"Picture", {}, u"insert-image"},
    {u"InsertSub_1", u"Anchor", {}, u"insert-link"},
    {u"InsertButton", u"Insert &Button", {}, u"#button"},
    opens(u"InsertHTML", u"Insert &HTML...", u"InsertHTMLDlg", {}, {}),
};

// The captions are the designer's block formats, which it names when its first document is complete.
constexpr MenuItem formatItems[] = {
    check(u"FormatSub_0", {}),  check(u"FormatSub_1", {}),  check(u"FormatSub_2", {}),  check(u"FormatSub_3", {}),
    check(u"FormatSub_4", {}),  check(u"FormatSub_5", {}),  check(u"FormatSub_6", {}),  check(u"FormatSub_7", {}),
    check(u"FormatSub_8", {}),  check(u"FormatSub_9", {}),  check(u"FormatSub_10", {}), check(u"FormatSub_11", {}),
    check(u"FormatSub_12", {}), check(u"FormatSub_13", {}), check(u"FormatSub_14", {}), check(u"FormatSub_15", {}),
};

constexpr MenuItem tableItems[] = {
    opens(u"TableSub_0", u"Insert Table", u"InsertTableDlg", u"insert-table", {}),
    divider(u"TableSub_1"),
    {u"TableSub_2", u"Insert Row", {}, u"edit-table-insert-row-below"},
    {u"TableSub_3", u"Insert Collumn", {}, u"edit-table-insert-column-right"},
    {u"TableSub_4", u"Insert Cell"},
    divider(u"TableSub_5"),
    {u"TableSub_6", u"Delete Rows", {}, u"edit-table-delete-row"},
    {u"TableSub_7", u"Delete Collumns", {}, u"edit-table-delete-column"},
    {u"TableSub_8", u"Delete Cells"},
    divider(u"TableSub_9"),
    {u"TableSub_10", u"Merge Cells", {}, u"edit-table-cell-merge"},
    {u"TableSub_11", u"Split Cell", {}, u"edit-table-cell-split"},
};

constexpr MenuItem positionItems[] = {
    {u"D2DSub_0", u"Set position to absolute"},
    {u"D2DSub_1", u"Bring to front", {}, u"object-order-front"},
    {u"D2DSub_2", u"Send to back", {}, u"object-order-back"},
    {u"D2DSub_3", u"Bring forward", {}, u"object-order-raise"},
    {u"D2DSub_4", u"Send back", {}, u"object-order-lower"},
    {u"D2DSub_5", u"Bring above text"},
    {u"D2DSub_6", u"Send below text"},
    divider(u"D2DSub_7"),
    check(u"D2DSub_8", u"Lock element"),
};

// The menu Tags has a table of its own, tagsmenu.h.
// clang-format off: a row a line
constexpr MenuItem bar[] = {
    menu(u"mnufile", u"&File", fileItems),    menu(u"edit", u"&Edit", editItems),
    menu(u"tools", u"&Tools", toolItems),     menu(u"options", u"&Options", optionItems),
    menu(u"Tags", u"&Fast Web Tags", {}),     menu(u"mnuplugins", u"Plugins", pluginItems),
    menu(u"help", u"&Help", helpItems),       {u"mnusep", u"|", {}, {}, {}, {}, Kind::Bar},
    menu(u"View", u"&View", viewItems),       menu(u"Insert", u"&Insert", insertItems),
    menu(u"Format", u"F&ormat", formatItems), menu(u"Table", u"T&able", tableItems),
    menu(u"d2d", u"&2D", positionItems),
};
// clang-format on

constexpr MenuItem fileListItems[] = {
    {u"mnuqv", u"QuickView", {}, u"quickview", u"Show the file without opening it"},
    {u"mnuinslink", u"Insert Link to this file", {}, u"insert-link", u"Insert a link to the file"},
    {u"mnuef", u"Edit Filters", {}, u"view-filter", u"Choose which files the list shows"},
};

constexpr MenuItem hiddenItems[] = {menu(u"mnufilerc", u"filerc", fileListItems)};

constexpr MenuItem suggestionItems[] = {{u"sug_0", u"- Spelling Suggestions -", {}, {}, {}, {}, Kind::Missing}};

constexpr MenuItem customTabItems[] = {
    {u"mnuaddcentry", u"Add Entry", {}, u"list-add", u"Add an entry to this tab"},
};

constexpr MenuItem popups[] = {
    menu(u"mnuhid", u"hid", hiddenItems),
    menu(u"mnuspell", u"Spelling", suggestionItems),
    menu(u"cmenu", u"cmenu", customTabItems),
};

constexpr QStringView visualOnly[] = {u"View", u"Insert", u"Format", u"Table", u"d2d"};

const MenuItem *findIn(std::span<const MenuItem> items, QStringView name)
{
    for (const MenuItem &item : items) {
        if (item.name == name)
            return &item;
        if (const MenuItem *found = findIn(item.children, name))
            return found;
    }
    return nullptr;
}

} // namespace

std::span<const MenuItem> menuBarTable()
{
    return bar;
}

std::span<const MenuItem> popupTable()
{
    return popups;
}

const MenuItem *findMenuItem(QStringView name)
{
    if (name.isEmpty())
        return nullptr;
    const MenuItem *found = findIn(bar, name);
    return found ? found : findIn(popups, name);
}

std::span<const QStringView> visualMenus()
{
    return visualOnly;
}

} // namespace zephira

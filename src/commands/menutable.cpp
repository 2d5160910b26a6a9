// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/menutable.h"

#include "commands/commandfunctions.h"
#include "commands/commandparts.h"
#include "commands/helppages.h"
#include "commands/sourceformatting.h"
#include "commands/texttable.h"
#include "core/designer.h"
#include "document/document.h"
#include "views/designertools.h"

#include <iterator>

namespace zephira {

namespace {

using Kind = MenuItem::Kind;

constexpr MenuItem check(QStringView name, QStringView caption, const Command &command, QStringView shortcut = {},
                         QStringView statusTip = {})
{
    return {name, caption, shortcut, {}, statusTip, command, {}, Kind::Check};
}

constexpr MenuItem menu(QStringView name, QStringView caption, std::span<const MenuItem> children,
                        Need need = Need::Nothing)
{
    return {name, caption, {}, {}, {}, {}, {}, Kind::Menu, children, need};
}

/// The row, with something that it needs.
constexpr MenuItem needing(Need need, MenuItem item)
{
    item.need = need;
    return item;
}

/// The row, with a designer command that it depends on.
constexpr MenuItem asking(DesignerCommand command, MenuItem item)
{
    item.asks = command;
    return item;
}

/// An entry that opens a form.
constexpr MenuItem opens(QStringView name, QStringView caption, QStringView form, QStringView icon,
                         QStringView statusTip, QStringView shortcut = {})
{
    return {name, caption, shortcut, icon, statusTip, {OpensForm{form}}, form};
}

/// The entry, with its form as a window beside the main one.
constexpr MenuItem beside(MenuItem item)
{
    item.command.effect = OpensForm{item.form, OpensForm::Kind::Modeless};
    return item;
}

/// A command of the designer.
constexpr MenuItem designs(QStringView name, QStringView caption, DesignerCommand command, QStringView icon = {})
{
    return {name, caption, {}, icon, {}, {command}};
}

/// A switch of the designer.
constexpr MenuItem turns(QStringView name, QStringView caption, bool (Designer::*get)() const,
                         void (Designer::*set)(bool))
{
    return check(name, caption, {TurnsSwitch{name, get, set}});
}

/// A block format of the designer; see blockFormatMenu() for the caption.
constexpr MenuItem formats(QStringView name, int number)
{
    return check(name, {}, {SetsBlockFormat{number}});
}

constexpr MenuItem divider(QStringView name = {})
{
    return {name, {}, {}, {}, {}, {}, {}, Kind::Divider};
}

/// A built-in command of the code view.
constexpr Command inCodeView(EditorCommand command)
{
    return {command, Refusal::CodeView};
}

/// An editing command of the visible view.
constexpr Command inView(DesignerCommand designer, void (EditingControl::*editor)())
{
    return {EditsView{designer, editor}};
}

constexpr MenuItem newItems[] = {
    {u"mnufromtemp",
     u"From Template",
     u"Ctrl+T",
     u"document-new-from-template",
     u"Start a document from a template",
     {&Document::newFromTemplate},
     u"frmselprj"},
    {u"mnunewdoc", u"Blank Document", u"Ctrl+N", u"document-new", u"Start an empty document", {&Document::newDocument}},
    {u"mnunewwindow", u"Window", u"F12", u"window-new", u"Open another window", {&WindowCommands::newWindow}},
};

constexpr MenuItem fileItems[] = {
    menu(u"new", u"&New...", newItems),
    {u"open", u"&Open Document", u"Ctrl+O", u"document-open", u"Open a document", {&Document::open}},
    divider(),
    {u"save", u"&Save Document", u"Ctrl+S", u"document-save", u"Save the document", {&Document::save}},
    {u"saveas",
     u"Save Document &As",
     {},
     u"document-save-as",
     u"Save the document under another name",
     {&Document::saveAs}},
    {u"mnusavetemplate",
     u"Save Document as &Template",
     {},
     u"document-save-as-template",
     u"Save the document as a template for new ones",
     {&Document::saveAsTemplate}},
    divider(),
    {u"print", u"&Print", u"Ctrl+P", u"document-print", u"Print the document", {&Document::print}},
    {u"clearclip", u"&Clear Clipboard", {}, u"edit-clear-history", u"Empty the clipboard", {&Document::clearClipboard}},
    divider(),
    {u"exit", u"&Exit", {}, u"application-exit", u"Exit at once, without saving", {&WindowCommands::exitNow}},
};

constexpr MenuItem editItems[] = {
    {u"undo", u"&Undo", u"Ctrl+Z", u"edit-undo", u"Undo the last change",
     inView(DesignerCommand::Undo, &EditingControl::undo)},
    {u"redo", u"&Redo", u"Ctrl+Y", u"edit-redo", u"Redo the change that was undone last",
     inView(DesignerCommand::Redo, &EditingControl::redo)},
    divider(),
    {u"cut", u"C&ut", u"Ctrl+X", u"edit-cut", u"Move the selection to the clipboard",
     inView(DesignerCommand::Cut, &EditingControl::cut)},
    {u"copy", u"&Copy", u"Ctrl+C", u"edit-copy", u"Copy the selection to the clipboard",
     inView(DesignerCommand::Copy, &EditingControl::copy)},
    {u"paste", u"&Paste", u"Ctrl+V", u"edit-paste", u"Insert the clipboard's text",
     inView(DesignerCommand::Paste, &EditingControl::paste)},
    {u"delete", u"&Delete", u"Del", u"edit-delete", u"Remove the selection",
     inView(DesignerCommand::Delete, &EditingControl::clearSelection)},
    divider(),
    {u"find", u"&Find", u"Ctrl+F", u"edit-find", u"Find text in the document", inCodeView(EditorCommand::FindDialog)},
    {u"findnext", u"Find &Next", u"F3", u"go-down-search", u"Find the text again", inCodeView(EditorCommand::FindNext)},
    {u"mnreplace", u"&Replace", u"Ctrl+R", u"edit-find-replace", u"Find text and replace it",
     inCodeView(EditorCommand::FindReplaceDialog)},
    {u"goto", u"&Go To...", u"Ctrl+G", u"go-jump", u"Go to a line", inCodeView(EditorCommand::GoToLine)},
    divider(),
    {u"selectall", u"&Select All", u"Ctrl+A", u"edit-select-all", u"Select the whole text",
     inCodeView(EditorCommand::SelectAll)},
    {u"Timedate",
     u"&Time/Date",
     u"F5",
     u"clock",
     u"Insert the time and the date after the selection",
     {insertTimeAndDate, Refusal::CodeView}},
    divider(),
    {u"mnunextview",
     u"Next View",
     u"F8",
     u"go-next-view",
     u"Go to the next view of the document",
     {&ViewTabs::selectNext}},
};

constexpr MenuItem formatSourceItems[] = {
    {u"mnufcomp", u"Compact", {}, {}, u"Make the source as short as possible", {&SourceFormatting::compact}},
    {u"mnuformath", u"Hierarchical", {}, {}, u"Indent the source by its structure", {&SourceFormatting::hierarchical}},
    {u"mnufsimple", u"Simple", {}, {}, u"Put each tag on a line of its own", {&SourceFormatting::simple}},
};

constexpr MenuItem toolItems[] = {
    opens(u"mnuascwiz", u"Ascii Wizard", u"frmascii", {}, u"Show the code of a key in three notations"),
    opens(u"mnucp", u"Color Picker", u"ColorPick", u"color-picker", u"Choose a color"),
    beside(opens(u"colors", u"&Color Spy", u"frmColorSpy", u"crosshairs", u"Read a color from the screen")),
    opens(u"mnucw", u"Cookie Wizard", u"frmwizcookie", {}, u"Build a script that sets a cookie"),
    opens(u"mnuddg", u"Drop Down Generator", u"frmdropdown", u"#combo", u"Build a drop-down list"),
    opens(u"mnuformwiz", u"Form Wizard", u"FormWizard", u"#form", u"Build a form"),
    menu(u"mnufsc", u"Format Source Code", formatSourceItems),
    opens(u"mnuframewiz", u"Frames Wizard", u"frmFramesWiz", u"#frameset", u"Build a page of frames"),
    {u"mnuftpclient",
     u"&FTP Client",
     {},
     u"folder-sync",
     u"Move files to and from a server",
     {openFtpClient},
     u"frmmainftp"},
    opens(u"mnuimw", u"Image Wizard", u"ImageWizard", u"insert-image", u"Insert a picture"),
    opens(u"mnuinsbreakd", u"Insert Break...", u"frminsbreak", u"#return", u"Insert a line break with attributes"),
    opens(u"mnule", u"&Link Extractor", u"frmlinkextract", u"view-list-text", u"List the document's links"),
    opens(u"mnumw", u"Marquee Wizard", u"frmwizMarquee", {}, u"Insert scrolling text"),
    opens(u"mnuaspredirect", u"Meta Redirect", u"frmRedirect", {}, u"Redirect visitors to another page"),
    opens(u"mnumtw", u"Meta Tag Wizard", u"frmMeta", {}, u"Describe the page for search engines"),
    opens(u"mnutblwiz", u"Table Wizard", u"frmTables", u"insert-table", u"Build a table"),
    opens(u"mnuthw", u"&Text File to HTML Wizard", u"frmthcon", {}, u"Turn a text file into a page"),
    opens(u"mnutextwiz", u"Text Wizard", u"frmtextthtml", {}, u"Turn lines of text into markup"),
    opens(u"mnuvbsw", u"VB Statement Wizard", u"frmvbwiz", {}, u"Build a script statement"),
    opens(u"webview", u"&Web Source Viewer", u"frmwebdisp", u"viewhtml", u"Fetch the source of a web page", u"Ctrl+W"),
};

constexpr MenuItem optionItems[] = {
    opens(u"main", u"Main Options", u"frmOptions", u"configure", u"Settings of the program"),
    check(menuname::highlightedLines, u"&Highlighted Lines", {toggleHighlightedLines}, u"Ctrl+H",
          u"Highlight the caret's line"),
    opens(u"fileassociations", u"&Setup File Associations", u"frmfa", {}, u"Choose what opens with this program"),
    {u"font", u"&Font", u"F7", u"preferences-desktop-font", u"Choose the font of the code view", {chooseFont}},
    check(menuname::tipOfTheDay, u"View Tip of The Day", {toggleTips}, {}, u"Show a tip at each start"),
};

constexpr MenuItem pluginItems[] = {
    {u"mnupluginoptions_0", u"No Plugins Installed", {}, {}, {}, {RunsPlugin{0}}, {}, Kind::Entry, {}, Need::Plugin},
};

constexpr MenuItem helpItems[] = {
    {u"helpme", u"&General Help", u"F1", u"help-contents", u"Open the handbook", {openHelp}},
    {u"readme", u"&Readme", {}, u"documentinfo", u"Show the read-me file", {&PaneCommands::showReadme}},
    {u"mnuupdate",
     u"Update Zephira.",
     {},
     u"system-upgrade",
     u"Check for a newer version",
     {&WindowCommands::updateProgram}},
    {u"website", u"Zephira Website", {}, u"internet-services", u"Open the program's site", {openWebsite}},
    opens(u"about", u"&About", u"frmAbout", u"help-about", u"About this program", u"F6"),
};

constexpr MenuItem viewItems[] = {
    turns(u"ViewSub_0", u"Borders", &Designer::showBorders, &Designer::setShowBorders),
    turns(u"ViewSub_1", u"Document Details", &Designer::showDetails, &Designer::setShowDetails),
    turns(u"ViewSub_2", u"Preview", &Designer::browseMode, &Designer::setBrowseMode),
    turns(u"ViewSub_10", u"Snap to Grid", &Designer::snapToGrid, &Designer::setSnapToGrid),
};

constexpr MenuItem insertItems[] = {
    designs(u"InsertSub_0", u"Picture", DesignerCommand::Image, u"insert-image"),
    designs(u"InsertSub_1", u"Anchor", DesignerCommand::Hyperlink, u"insert-link"),
    needing(Need::PageText, {u"InsertButton", u"Insert &Button", {}, u"#button", {}, {insertFormButton}}),
    needing(Need::PageText, opens(u"InsertHTML", u"Insert &HTML...", u"InsertHTMLDlg", {}, {})),
};

// clang-format off: a row a line
constexpr MenuItem formatItems[] = {
    formats(u"FormatSub_0", 0),   formats(u"FormatSub_1", 1),   formats(u"FormatSub_2", 2),
    formats(u"FormatSub_3", 3),   formats(u"FormatSub_4", 4),   formats(u"FormatSub_5", 5),
    formats(u"FormatSub_6", 6),   formats(u"FormatSub_7", 7),   formats(u"FormatSub_8", 8),
    formats(u"FormatSub_9", 9),   formats(u"FormatSub_10", 10), formats(u"FormatSub_11", 11),
    formats(u"FormatSub_12", 12), formats(u"FormatSub_13", 13), formats(u"FormatSub_14", 14),
    formats(u"FormatSub_15", 15),
};
// clang-format on

constexpr MenuItem tableItems[] = {
    asking(DesignerCommand::InsertTable, opens(u"TableSub_0", u"Insert Table", u"InsertTableDlg", u"insert-table", {})),
    divider(u"TableSub_1"),
    designs(u"TableSub_2", u"Insert Row", DesignerCommand::InsertRow, u"edit-table-insert-row-below"),
    designs(u"TableSub_3", u"Insert Collumn", DesignerCommand::InsertColumn, u"edit-table-insert-column-right"),
    designs(u"TableSub_4", u"Insert Cell", DesignerCommand::InsertCell),
    divider(u"TableSub_5"),
    designs(u"TableSub_6", u"Delete Rows", DesignerCommand::DeleteRows, u"edit-table-delete-row"),
    designs(u"TableSub_7", u"Delete Collumns", DesignerCommand::DeleteColumns, u"edit-table-delete-column"),
    designs(u"TableSub_8", u"Delete Cells", DesignerCommand::DeleteCells),
    divider(u"TableSub_9"),
    designs(u"TableSub_10", u"Merge Cells", DesignerCommand::MergeCells, u"edit-table-cell-merge"),
    designs(u"TableSub_11", u"Split Cell", DesignerCommand::SplitCell, u"edit-table-cell-split"),
};

constexpr MenuItem positionItems[] = {
    designs(u"D2DSub_0", u"Set position to absolute", DesignerCommand::AbsolutePosition),
    designs(u"D2DSub_1", u"Bring to front", DesignerCommand::BringToFront, u"object-order-front"),
    designs(u"D2DSub_2", u"Send to back", DesignerCommand::SendToBack, u"object-order-back"),
    designs(u"D2DSub_3", u"Bring forward", DesignerCommand::BringForward, u"object-order-raise"),
    designs(u"D2DSub_4", u"Send back", DesignerCommand::SendBackward, u"object-order-lower"),
    designs(u"D2DSub_5", u"Bring above text", DesignerCommand::BringAboveText),
    designs(u"D2DSub_6", u"Send below text", DesignerCommand::SendBelowText),
    divider(u"D2DSub_7"),
    check(u"D2DSub_8", u"Lock element", {DesignerCommand::LockElement}),
};

static_assert(std::size(formatItems) == mostBlockFormats);

constexpr MenuItem formatMenu = menu(u"Format", u"F&ormat", formatItems, Need::VisualView);

// The Tags menu has a table of its own, see tagsmenu.h. It inserts into the source.
constexpr MenuItem bar[] = {
    menu(u"mnufile", u"&File", fileItems),
    menu(u"edit", u"&Edit", editItems),
    menu(u"tools", u"&Tools", toolItems, Need::SourceView),
    menu(u"options", u"&Options", optionItems),
    menu(menuname::tags, u"&Fast Web Tags", {}, Need::QuickTags),
    menu(u"mnuplugins", u"Plugins", pluginItems),
    menu(u"help", u"&Help", helpItems),
    {u"mnusep", u"|", {}, {}, {}, {}, {}, Kind::Bar},
    menu(u"View", u"&View", viewItems, Need::VisualView),
    menu(u"Insert", u"&Insert", insertItems, Need::VisualView),
    formatMenu,
    menu(u"Table", u"T&able", tableItems, Need::VisualView),
    menu(u"d2d", u"&2D", positionItems, Need::VisualView),
};

constexpr MenuItem fileListItems[] = {
    needing(Need::ListedFile,
            {u"mnuqv",
             u"QuickView",
             {},
             u"quickview",
             u"Show the file without opening it",
             {&FileListCommands::showInQuickView}}),
    needing(Need::ListedFile,
            {u"mnuinslink",
             u"Insert Link to this file",
             {},
             u"insert-link",
             u"Insert a link to the file",
             {&FileListCommands::insertLink}}),
    {u"mnuef",
     u"Edit Filters",
     {},
     u"view-filter",
     u"Choose which files the list shows",
     {&FileListCommands::editFilters}},
};

constexpr MenuItem hiddenItems[] = {menu(menuname::fileList, u"filerc", fileListItems)};

constexpr MenuItem suggestionItems[] = {
    {.name = u"sug_0", .caption = u"- Spelling Suggestions -", .kind = Kind::Title},
};

constexpr MenuItem customTabItems[] = {
    {u"mnuaddcentry", u"Add Entry", {}, u"list-add", u"Add an entry to this tab", {&PaneCommands::addCustomEntry}},
};

constexpr MenuItem popups[] = {
    menu(u"mnuhid", u"hid", hiddenItems),
    menu(menuname::suggestions, u"Spelling", suggestionItems),
    menu(menuname::customTab, u"cmenu", customTabItems),
};

/// Each entry that can be chosen has an effect, and nothing else has one.
constexpr bool eachEntryActs(std::span<const MenuItem> items)
{
    for (const MenuItem &item : items) {
        const bool canBeChosen = item.kind == Kind::Entry || item.kind == Kind::Check;
        if (hasEffect(item.command) != canBeChosen || !eachEntryActs(item.children))
            return false;
    }
    return true;
}

static_assert(eachEntryActs(bar) && eachEntryActs(popups));

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

const MenuItem &blockFormatMenu()
{
    return formatMenu;
}

const MenuItem *findMenuItem(QStringView name)
{
    if (name.isEmpty())
        return nullptr;
    for (const std::span<const MenuItem> table : {menuBarTable(), popupTable(), textMenuTable()}) {
        if (const MenuItem *found = findIn(table, name))
            return found;
    }
    return nullptr;
}

} // namespace zephira

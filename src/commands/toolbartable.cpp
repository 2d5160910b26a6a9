// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/toolbartable.h"

#include "commands/browserpreview.h"
#include "commands/commandfunctions.h"
#include "commands/commandparts.h"
#include "document/document.h"

namespace zephira {

namespace {

constexpr ToolButton separator{};

/// A button that does what a menu entry does, which has the button's key for a name unless another is given.
constexpr ToolButton likeEntry(ToolButton button, QStringView entry = {})
{
    button.entry = entry.isEmpty() ? button.key : entry;
    return button;
}

/// The editing buttons act on the code view whichever view is visible, unlike the menu entries.
constexpr ToolButton standardButtons[] = {
    likeEntry({u"new", u"New document", u"document-new", {&Document::newDocument}}, u"mnunewdoc"),
    likeEntry({u"open", u"Open a document", u"document-open", {&Document::open}}),
    likeEntry({u"save", u"Save the document", u"document-save", {&Document::save}}),
    likeEntry({u"print", u"Print the document", u"document-print", {&Document::print}}),
    separator,
    likeEntry({u"cut", u"Cut", u"edit-cut", {EditsText{&EditingControl::cut}}}),
    likeEntry({u"copy", u"Copy", u"edit-copy", {EditsText{&EditingControl::copy}}}),
    likeEntry({u"paste", u"Paste", u"edit-paste", {EditsText{&EditingControl::paste}}}),
    likeEntry({u"delete", u"Delete", u"edit-delete", {deleteSelectedText}}),
    separator,
    likeEntry({u"undo", u"Undo", u"edit-undo", {undoFromToolbar}}),
    likeEntry({u"redo", u"Redo", u"edit-redo", {redoFromToolbar}}),
};

/// An entry of a pull-down that works only in the code view.
constexpr PullDownEntry entry(QStringView key, QStringView caption, QStringView icon, QStringView statusTip,
                              const Effect &effect, QStringView form = {})
{
    return {key, caption, icon, statusTip, {effect, Refusal::CodeView}, form};
}

constexpr PullDownEntry opens(QStringView key, QStringView caption, QStringView icon, QStringView statusTip,
                              QStringView form)
{
    return entry(key, caption, icon, statusTip, OpensForm{form}, form);
}

constexpr PullDownEntry previewEntries[] = {
    entry(u"pie", u"In Internet Explorer", {}, u"Save and show the document in the browser of your choice",
          previewInNamedBrowser),
    entry(u"pidb", u"Preview in default browser", u"internet-services",
          u"Save and show the document in the default browser", previewInDefaultBrowser),
    entry(u"picb", u"In Zephira Browser", u"document-preview", u"Show the document in the preview", showPreview),
};

constexpr PullDownEntry linkEntries[] = {
    opens(u"linkwiz", u"Link Wizard", u"insert-link", u"Insert a link", u"frmlinkwiz"),
    opens(u"linkextract", u"Extract Links from Document", u"view-list-text", u"List the document's links",
          u"frmlinkextract"),
};

constexpr PullDownEntry tagEntries[] = {
    opens(u"dtw", u"Tag Wizard", u"tools-wizard", u"Build a tag from its attributes", u"frmTagEdit"),
    opens(u"dts", u"Tag Selector", u"view-list-text", u"Choose a tag from a list", u"frmTags"),
    entry(u"dqw", u"Quick Tags", u"sidebar-expand-left", u"Show the tags in the side pane", showQuickTags),
};

constexpr Command around(QStringView before, QStringView after)
{
    return {WrapsSelection{before, after}, Refusal::CodeViewForNow};
}

/// A button, or a separator, for documents in a markup language.
constexpr ToolButton markup(ToolButton button)
{
    button.need = Need::Markup;
    return button;
}

constexpr ToolButton formattingButtons[] = {
    markup({u"bold", u"Bold", u"format-text-bold", around(u"<strong>", u"</strong>")}),
    markup({u"italic", u"Italic", u"format-text-italic", around(u"<em>", u"</em>")}),
    markup({u"underline", u"Underline", u"format-text-underline", around(u"<u>", u"</u>")}),
    markup({}),
    markup({u"left", u"Align left", u"format-justify-left", around(u"<p align=left>", u"</p>")}),
    markup({u"center", u"Center", u"format-justify-center", around(u"<center>", u"</center>")}),
    markup({u"right", u"Align right", u"format-justify-right", around(u"<p align=\"right\">", u"</p>")}),
    markup({}),
    markup({u"preview", u"Preview the document", u"document-preview", {showPreview}, {}, previewEntries}),
    markup({u"links", u"Insert a link", u"insert-link", {OpensForm{u"frmlinkwiz"}}, u"frmlinkwiz", linkEntries}),
    markup({u"htmltags",
            u"Choose a tag",
            u"#tags",
            {OpensForm{u"frmTags"}, Refusal::CodeViewForNow},
            u"frmTags",
            tagEntries}),
    markup({u"loadtime", u"Size of the document and time to load it", u"chronometer", {weighDocument}, u"frmDocSize"}),
    {u"specchars", u"Special characters", u":\u03a9", {OpensForm{u"frmChar", OpensForm::Kind::Modeless}}, u"frmChar"},
    {u"ftp", u"FTP client", u"folder-sync", {&PaneCommands::showFtp}, u"frmmainftp"},
    {u"reset", u"Discard Changes and Reload document", u"document-revert", {&Document::revert}},
};

/// Each button and each entry of a pull-down has an effect, and no separator has one.
constexpr bool eachButtonActs(std::span<const ToolButton> buttons)
{
    for (const ToolButton &button : buttons) {
        if (hasEffect(button.command) == button.key.isEmpty())
            return false;
        for (const PullDownEntry &row : button.pullDown) {
            if (!hasEffect(row.command))
                return false;
        }
    }
    return true;
}

static_assert(eachButtonActs(standardButtons) && eachButtonActs(formattingButtons));

constexpr ToolBarTable standard{u"tBar", u"Standard", standardButtons};
constexpr ToolBarTable formatting{u"Toolbar1", u"Formatting", formattingButtons};

} // namespace

const ToolBarTable &standardToolBar()
{
    return standard;
}

const ToolBarTable &formattingToolBar()
{
    return formatting;
}

} // namespace zephira

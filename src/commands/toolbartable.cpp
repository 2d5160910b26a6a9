// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/toolbartable.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr ToolButton separator{};

constexpr ToolButton standardButtons[] = {
    {u"new", u"New document (Ctrl+N)", u"document-new"},
    {u"open", u"Open a document (Ctrl+O)", u"document-open"},
    {u"save", u"Save the document (Ctrl+S)", u"document-save"},
    {u"print", u"Print the document (Ctrl+P)", u"document-print"},
    separator,
    {u"cut", u"Cut", u"edit-cut"},
    {u"copy", u"Copy", u"edit-copy"},
    {u"paste", u"Paste", u"edit-paste"},
    {u"delete", u"Delete", u"edit-delete"},
    separator,
    {u"undo", u"Undo", u"edit-undo"},
    {u"redo", u"Redo", u"edit-redo"},
};

constexpr PullDownEntry previewEntries[] = {
    {u"pie", u"In Internet Explorer", {}, u"Save and show the document in the browser of your choice"},
    {u"pidb", u"Preview in default browser", u"internet-services",
     u"Save and show the document in the default browser"},
    {u"picb", u"In Zephira Browser", u"document-preview", u"Show the document in the preview"},
};

constexpr PullDownEntry linkEntries[] = {
    {u"linkwiz", u"Link Wizard", u"insert-link", u"Insert a link", u"frmlinkwiz"},
    {u"linkextract", u"Extract Links from Document", u"view-list-text", u"List the document's links",
     u"frmlinkextract"},
};

constexpr PullDownEntry tagEntries[] = {
    {u"dtw", u"Tag Wizard", u"tools-wizard", u"Build a tag from its attributes", u"frmTagEdit"},
    {u"dts", u"Tag Selector", u"view-list-text", u"Choose a tag from a list", u"frmTags"},
    {u"dqw", u"Quick Tags", u"sidebar-expand-left", u"Show the tags in the side pane"},
};

constexpr ToolButton formattingButtons[] = {
    {u"bold", u"Bold", u"format-text-bold", {}, u"<strong>", u"</strong>"},
    {u"italic", u"Italic", u"format-text-italic", {}, u"<em>", u"</em>"},
    {u"underline", u"Underline", u"format-text-underline", {}, u"<u>", u"</u>"},
    separator,
    {u"left", u"Align left", u"format-justify-left", {}, u"<p align=left>", u"</p>"},
    {u"center", u"Center", u"format-justify-center", {}, u"<center>", u"</center>"},
    {u"right", u"Align right", u"format-justify-right", {}, u"<p align=\"right\">", u"</p>"},
    separator,
    {u"preview", u"Preview the document", u"document-preview", {}, {}, {}, previewEntries},
    {u"links", u"Insert a link", u"insert-link", u"frmlinkwiz", {}, {}, linkEntries},
    {u"htmltags", u"Choose a tag", u"#tags", u"frmTags", {}, {}, tagEntries},
    {u"loadtime", u"Size of the document and time to load it", u"chronometer", u"frmDocSize"},
    {u"specchars", u"Special characters", u":\u03a9", u"frmChar"},
    {u"ftp", u"FTP client", u"folder-sync", u"frmmainftp"},
    {u"reset", u"Discard Changes and Reload document", u"document-revert"},
};

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

const ToolButton *findFormattingButton(QStringView key)
{
    const auto row = std::ranges::find_if(
        formattingButtons, [&](const ToolButton &button) { return !key.isEmpty() && button.key == key; });
    return row == std::end(formattingButtons) ? nullptr : &*row;
}

const PullDownEntry *findPullDownEntry(QStringView key)
{
    for (const ToolButton &button : formattingButtons) {
        const auto row = std::ranges::find_if(button.pullDown, [&](const PullDownEntry &e) { return e.key == key; });
        if (row != button.pullDown.end())
            return &*row;
    }
    return nullptr;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/texttable.h"

namespace zephira {

namespace {

using Kind = MenuItem::Kind;

constexpr MenuItem menu(QStringView name, QStringView caption, std::span<const MenuItem> children)
{
    return {name, caption, {}, {}, {}, {}, {}, Kind::Menu, children};
}

/// An entry that works on the text.
constexpr MenuItem entry(QStringView name, QStringView caption, TextCommand command, QStringView statusTip,
                         QStringView shortcut = {})
{
    return {name, caption, shortcut, {}, statusTip, {command}, {}, Kind::Entry, {}, Need::SourceView};
}

/// An entry with a check mark for what the window shows beside the text, or what it does by itself.
constexpr MenuItem shown(QStringView name, QStringView caption, TextCommand command, QStringView statusTip,
                         QStringView shortcut = {})
{
    return {name, caption, shortcut, {}, statusTip, {command}, {}, Kind::Check};
}

/// An entry that works in each view.
constexpr MenuItem everywhere(MenuItem item)
{
    item.need = Need::Nothing;
    return item;
}

constexpr MenuItem findItems[] = {
    everywhere(entry(u"textFindInProject", u"Find in &Project...", TextCommand::FindInProject,
                     u"Find a text in the files of the project, and replace it there", u"Ctrl+Shift+F")),
};

constexpr MenuItem goItems[] = {
    everywhere(entry(u"textCommandPalette", u"&Command Palette...", TextCommand::CommandPalette,
                     u"Search for a command and run it", u"Ctrl+Shift+P")),
    entry(u"textGoToSymbol", u"&Symbol...", TextCommand::GoToSymbol,
          u"Go to a heading, an id, a rule or a function of this document", u"Ctrl+Shift+O"),
};

constexpr MenuItem abbreviationItems[] = {
    entry(u"textExpandAbbreviation", u"&Expand Abbreviation", TextCommand::ExpandAbbreviation,
          u"Make markup or style sheets of the abbreviation before the caret, such as ul>li*3", u"Ctrl+E"),
    entry(u"textWrapWithAbbreviation", u"&Wrap with Abbreviation...", TextCommand::WrapWithAbbreviation,
          u"Put the elements of an abbreviation around the selection", u"Ctrl+Shift+E"),
};

constexpr MenuItem completionItems[] = {
    entry(u"textComplete", u"&Complete", TextCommand::Complete, u"List what may stand at the caret", u"Ctrl+Space"),
    shown(u"textCompleteWhileTyping", u"List While &Typing", TextCommand::CompleteWhileTyping,
          u"List by itself what may stand behind <, &, : and a blank in a tag"),
};

constexpr MenuItem insertItems[] = {
    entry(u"textChangeColor", u"Change &Color...", TextCommand::ChangeColour,
          u"Choose another color in place of the one at the caret"),
};

constexpr MenuItem lineItems[] = {
    entry(u"textJoinLines", u"&Join Lines", TextCommand::JoinLines,
          u"Make one line of the selected lines, or of this one and the next", u"Ctrl+J"),
    entry(u"textMoveLinesUp", u"Move &Up", TextCommand::MoveLinesUp,
          u"Exchange the selected lines, or this one, with the line above", u"Alt+Up"),
    entry(u"textMoveLinesDown", u"Move &Down", TextCommand::MoveLinesDown,
          u"Exchange the selected lines, or this one, with the line below", u"Alt+Down"),
    entry(u"textDuplicate", u"Du&plicate", TextCommand::Duplicate,
          u"Repeat the selected text behind itself, or this line below", u"Ctrl+Shift+D"),
    entry(u"textDeleteLines", u"D&elete", TextCommand::DeleteLines, u"Delete the selected lines, or this one",
          u"Ctrl+Shift+K"),
    entry(u"textSortLines", u"&Sort", TextCommand::SortLines,
          u"Bring the selected lines, or all lines, into the order of letters and numbers"),
    entry(u"textRemoveTrailingBlanks", u"Remove Trailing &Blanks", TextCommand::RemoveTrailingBlanks,
          u"Remove the blanks at the ends of the selected lines, or of all lines"),
};

constexpr MenuItem showItems[] = {
    shown(textname::breadcrumb, u"&Breadcrumb", TextCommand::ShowBreadcrumb,
          u"Show the elements around the caret in a line below the text"),
    shown(u"textSwatches", u"&Color Squares", TextCommand::ShowSwatches,
          u"Show a small square of its color before each color in the text"),
    shown(textname::livePage, u"&Live Page", TextCommand::LivePage, u"Show the page beside its source while you type",
          u"F9"),
};

constexpr MenuItem caretItems[] = {
    entry(u"textSelectAllOccurrences", u"Select &All Occurrences", TextCommand::SelectAllOccurrences,
          u"Select the selected text, or this word, everywhere", u"Ctrl+Shift+L"),
    entry(u"textCaretInEachLine", u"Caret in &Each Line", TextCommand::CaretInEachLine,
          u"Put a caret at the end of each selected line", u"Ctrl+Shift+I"),
    entry(u"textGoToLastEdit", u"Go to the &Last Edit", TextCommand::GoToLastEdit,
          u"Go to where the text was changed last, and from there to where it was changed before", u"Ctrl+Shift+Y"),
};

constexpr MenuItem caseItems[] = {
    entry(u"textMakeUpperCase", u"&Upper Case", TextCommand::MakeUpperCase,
          u"Make capital letters of the selected text, or of this word", u"Ctrl+Shift+U"),
    entry(u"textMakeLowerCase", u"&Lower Case", TextCommand::MakeLowerCase,
          u"Make small letters of the selected text, or of this word", u"Ctrl+U"),
    entry(u"textCapitalise", u"&Capitalise Words", TextCommand::Capitalise,
          u"Begin each word of the selected text, or this word, with a capital letter"),
};

constexpr MenuItem codeItems[] = {
    entry(u"textToggleComment", u"&Comment", TextCommand::ToggleComment,
          u"Make a comment of the selected text or of this line, or text of a comment", u"Ctrl+/"),
    entry(u"textRenameTag", u"&Rename Tag", TextCommand::RenameTag,
          u"Select the names in the start tag and the end tag, to type both at once", u"Ctrl+Shift+R"),
    entry(u"textSelectEnclosing", u"Select &Enclosing Element", TextCommand::SelectEnclosing,
          u"Select the element around the caret, or the next one around it", u"Ctrl+Shift+Up"),
    entry(u"textSelectInner", u"Select &Inner Element", TextCommand::SelectInner,
          u"Select again what was selected before the element around it", u"Ctrl+Shift+Down"),
    shown(u"textAutoClose", u"&Close While Typing", TextCommand::AutoClose,
          u"Put the closing bracket, quote or tag behind the caret as soon as the opening one is typed"),
};

// clang-format off
constexpr MenuItem menus[] = {
    menu(u"textGo", u"&Go To", goItems),
    menu(u"textFind", u"&Find", findItems),
    menu(u"textCompletion", u"C&ompletion", completionItems),
    menu(u"textInsert", u"&Insert", insertItems),
    menu(u"textAbbreviations", u"&Abbreviations", abbreviationItems),
    menu(u"textCarets", u"Ca&rets", caretItems),
    menu(u"textLines", u"&Lines", lineItems),
    menu(u"textLetters", u"Le&tters", caseItems),
    menu(u"textCode", u"C&ode", codeItems),
    menu(u"textShow", u"&Show", showItems),
};
// clang-format on

} // namespace

std::span<const MenuItem> textMenuTable()
{
    return menus;
}

} // namespace zephira

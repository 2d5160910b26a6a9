// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/texttable.h"

#include "core/translation.h"

namespace zephira {

namespace {

using Kind = MenuItem::Kind;

/// Of the texts' translations.
constexpr auto context = "TextMenu";

constexpr MenuItem menu(QStringView name, QStringView caption, std::span<const MenuItem> children)
{
    return {.name = name, .caption = caption, .kind = Kind::Menu, .children = children, .context = context};
}

/// An entry that works on the text.
constexpr MenuItem entry(QStringView name, QStringView caption, TextCommand command, QStringView statusTip,
                         QStringView shortcut = {})
{
    return {.name = name,
            .caption = caption,
            .shortcut = shortcut,
            .statusTip = statusTip,
            .command = {command},
            .need = Need::SourceView,
            .context = context};
}

/// An entry with a check mark for what the window shows beside the text, or what it does by itself.
constexpr MenuItem shown(QStringView name, QStringView caption, TextCommand command, QStringView statusTip,
                         QStringView shortcut = {})
{
    return {.name = name,
            .caption = caption,
            .shortcut = shortcut,
            .statusTip = statusTip,
            .command = {command},
            .kind = Kind::Check,
            .context = context};
}

/// An entry that works in each view.
constexpr MenuItem everywhere(MenuItem item)
{
    item.need = Need::Nothing;
    return item;
}

constexpr MenuItem findItems[] = {
    everywhere(entry(u"textFindInProject", ZEPHIRA_TEXT("TextMenu", "Find in &Project..."), TextCommand::FindInProject,
                     ZEPHIRA_TEXT("TextMenu", "Find a text in the files of the project, and replace it there"),
                     u"Ctrl+Shift+F")),
};

constexpr MenuItem goItems[] = {
    everywhere(entry(u"textCommandPalette", ZEPHIRA_TEXT("TextMenu", "&Command Palette..."),
                     TextCommand::CommandPalette, ZEPHIRA_TEXT("TextMenu", "Search for a command and run it"),
                     u"Ctrl+Shift+P")),
    entry(u"textGoToSymbol", ZEPHIRA_TEXT("TextMenu", "&Symbol..."), TextCommand::GoToSymbol,
          ZEPHIRA_TEXT("TextMenu", "Go to a heading, an id, a rule or a function of this document"), u"Ctrl+Shift+O"),
};

constexpr MenuItem abbreviationItems[] = {
    entry(u"textExpandAbbreviation", ZEPHIRA_TEXT("TextMenu", "&Expand Abbreviation"), TextCommand::ExpandAbbreviation,
          ZEPHIRA_TEXT("TextMenu", "Make markup or style sheets of the abbreviation before the caret, such as ul>li*3"),
          u"Ctrl+E"),
    entry(u"textWrapWithAbbreviation", ZEPHIRA_TEXT("TextMenu", "&Wrap with Abbreviation..."),
          TextCommand::WrapWithAbbreviation,
          ZEPHIRA_TEXT("TextMenu", "Put the elements of an abbreviation around the selection"), u"Ctrl+Shift+E"),
};

constexpr MenuItem completionItems[] = {
    entry(u"textComplete", ZEPHIRA_TEXT("TextMenu", "&Complete"), TextCommand::Complete,
          ZEPHIRA_TEXT("TextMenu", "List what may stand at the caret"), u"Ctrl+Space"),
    shown(u"textCompleteWhileTyping", ZEPHIRA_TEXT("TextMenu", "List While &Typing"), TextCommand::CompleteWhileTyping,
          ZEPHIRA_TEXT("TextMenu", "List by itself what may stand behind <, &, : and a blank in a tag")),
};

constexpr MenuItem insertItems[] = {
    entry(u"textChangeColor", ZEPHIRA_TEXT("TextMenu", "Change &Color..."), TextCommand::ChangeColour,
          ZEPHIRA_TEXT("TextMenu", "Choose another color in place of the one at the caret")),
};

constexpr MenuItem lineItems[] = {
    entry(u"textJoinLines", ZEPHIRA_TEXT("TextMenu", "&Join Lines"), TextCommand::JoinLines,
          ZEPHIRA_TEXT("TextMenu", "Make one line of the selected lines, or of this one and the next"), u"Ctrl+J"),
    entry(u"textMoveLinesUp", ZEPHIRA_TEXT("TextMenu", "Move &Up"), TextCommand::MoveLinesUp,
          ZEPHIRA_TEXT("TextMenu", "Exchange the selected lines, or this one, with the line above"), u"Alt+Up"),
    entry(u"textMoveLinesDown", ZEPHIRA_TEXT("TextMenu", "Move &Down"), TextCommand::MoveLinesDown,
          ZEPHIRA_TEXT("TextMenu", "Exchange the selected lines, or this one, with the line below"), u"Alt+Down"),
    entry(u"textDuplicate", ZEPHIRA_TEXT("TextMenu", "Du&plicate"), TextCommand::Duplicate,
          ZEPHIRA_TEXT("TextMenu", "Repeat the selected text behind itself, or this line below"), u"Ctrl+Shift+D"),
    entry(u"textDeleteLines", ZEPHIRA_TEXT("TextMenu", "D&elete"), TextCommand::DeleteLines,
          ZEPHIRA_TEXT("TextMenu", "Delete the selected lines, or this one"), u"Ctrl+Shift+K"),
    entry(u"textSortLines", ZEPHIRA_TEXT("TextMenu", "&Sort"), TextCommand::SortLines,
          ZEPHIRA_TEXT("TextMenu", "Bring the selected lines, or all lines, into the order of letters and numbers")),
    entry(u"textRemoveTrailingBlanks", ZEPHIRA_TEXT("TextMenu", "Remove Trailing &Blanks"),
          TextCommand::RemoveTrailingBlanks,
          ZEPHIRA_TEXT("TextMenu", "Remove the blanks at the ends of the selected lines, or of all lines")),
};

constexpr MenuItem problemItems[] = {
    entry(u"textNextProblem", ZEPHIRA_TEXT("TextMenu", "&Next Problem"), TextCommand::NextProblem,
          ZEPHIRA_TEXT("TextMenu", "Go to the next place where something is wrong, and tell what"), u"F4"),
    entry(u"textPreviousProblem", ZEPHIRA_TEXT("TextMenu", "&Previous Problem"), TextCommand::PreviousProblem,
          ZEPHIRA_TEXT("TextMenu", "Go to the place before where something is wrong, and tell what"), u"Shift+F4"),
    everywhere(entry(u"textListProblems", ZEPHIRA_TEXT("TextMenu", "&List Problems"), TextCommand::ListProblems,
                     ZEPHIRA_TEXT("TextMenu", "Open the panel with the list of what is wrong in this document"))),
    shown(u"textMarkProblems", ZEPHIRA_TEXT("TextMenu", "&Mark Problems"), TextCommand::MarkProblems,
          ZEPHIRA_TEXT("TextMenu", "Check the document a moment after each change, and mark what is wrong")),
};

constexpr MenuItem showItems[] = {
    shown(textname::breadcrumb, ZEPHIRA_TEXT("TextMenu", "&Breadcrumb"), TextCommand::ShowBreadcrumb,
          ZEPHIRA_TEXT("TextMenu", "Show the elements around the caret in a line below the text")),
    shown(u"textSwatches", ZEPHIRA_TEXT("TextMenu", "&Color Squares"), TextCommand::ShowSwatches,
          ZEPHIRA_TEXT("TextMenu", "Show a small square of its color before each color in the text")),
    shown(textname::livePage, ZEPHIRA_TEXT("TextMenu", "&Live Page"), TextCommand::LivePage,
          ZEPHIRA_TEXT("TextMenu", "Show the page beside its source while you type"), u"F9"),
};

constexpr MenuItem caretItems[] = {
    entry(u"textSelectAllOccurrences", ZEPHIRA_TEXT("TextMenu", "Select &All Occurrences"),
          TextCommand::SelectAllOccurrences,
          ZEPHIRA_TEXT("TextMenu", "Select the selected text, or this word, everywhere"), u"Ctrl+Shift+L"),
    entry(u"textCaretInEachLine", ZEPHIRA_TEXT("TextMenu", "Caret in &Each Line"), TextCommand::CaretInEachLine,
          ZEPHIRA_TEXT("TextMenu", "Put a caret at the end of each selected line"), u"Ctrl+Shift+I"),
    entry(u"textGoToLastEdit", ZEPHIRA_TEXT("TextMenu", "Go to the &Last Edit"), TextCommand::GoToLastEdit,
          ZEPHIRA_TEXT("TextMenu",
                       "Go to where the text was changed last, and from there to where it was changed before"),
          u"Ctrl+Shift+Y"),
};

constexpr MenuItem caseItems[] = {
    entry(u"textMakeUpperCase", ZEPHIRA_TEXT("TextMenu", "&Upper Case"), TextCommand::MakeUpperCase,
          ZEPHIRA_TEXT("TextMenu", "Make capital letters of the selected text, or of this word"), u"Ctrl+Shift+U"),
    entry(u"textMakeLowerCase", ZEPHIRA_TEXT("TextMenu", "&Lower Case"), TextCommand::MakeLowerCase,
          ZEPHIRA_TEXT("TextMenu", "Make small letters of the selected text, or of this word"), u"Ctrl+U"),
    entry(u"textCapitalise", ZEPHIRA_TEXT("TextMenu", "&Capitalise Words"), TextCommand::Capitalise,
          ZEPHIRA_TEXT("TextMenu", "Begin each word of the selected text, or this word, with a capital letter")),
};

constexpr MenuItem codeItems[] = {
    entry(u"textToggleComment", ZEPHIRA_TEXT("TextMenu", "&Comment"), TextCommand::ToggleComment,
          ZEPHIRA_TEXT("TextMenu", "Make a comment of the selected text or of this line, or text of a comment"),
          u"Ctrl+/"),
    entry(u"textRenameTag", ZEPHIRA_TEXT("TextMenu", "&Rename Tag"), TextCommand::RenameTag,
          ZEPHIRA_TEXT("TextMenu", "Select the names in the start tag and the end tag, to type both at once"),
          u"Ctrl+Shift+R"),
    entry(u"textSelectEnclosing", ZEPHIRA_TEXT("TextMenu", "Select &Enclosing Element"), TextCommand::SelectEnclosing,
          ZEPHIRA_TEXT("TextMenu", "Select the element around the caret, or the next one around it"), u"Ctrl+Shift+Up"),
    entry(u"textSelectInner", ZEPHIRA_TEXT("TextMenu", "Select &Inner Element"), TextCommand::SelectInner,
          ZEPHIRA_TEXT("TextMenu", "Select again what was selected before the element around it"), u"Ctrl+Shift+Down"),
    shown(u"textAutoClose", ZEPHIRA_TEXT("TextMenu", "Close &While Typing"), TextCommand::AutoClose,
          ZEPHIRA_TEXT("TextMenu",
                       "Put the closing bracket, quote or tag behind the caret as soon as the opening one is typed")),
};

// clang-format off
constexpr MenuItem menus[] = {
    menu(u"textGo", ZEPHIRA_TEXT("TextMenu", "&Go To"), goItems),
    menu(u"textFind", ZEPHIRA_TEXT("TextMenu", "&Find"), findItems),
    menu(u"textCompletion", ZEPHIRA_TEXT("TextMenu", "C&ompletion"), completionItems),
    menu(u"textInsert", ZEPHIRA_TEXT("TextMenu", "&Insert"), insertItems),
    menu(u"textAbbreviations", ZEPHIRA_TEXT("TextMenu", "&Abbreviations"), abbreviationItems),
    menu(u"textCarets", ZEPHIRA_TEXT("TextMenu", "Ca&rets"), caretItems),
    menu(u"textLines", ZEPHIRA_TEXT("TextMenu", "&Lines"), lineItems),
    menu(u"textLetters", ZEPHIRA_TEXT("TextMenu", "Le&tters"), caseItems),
    menu(u"textCode", ZEPHIRA_TEXT("TextMenu", "C&ode"), codeItems),
    menu(u"textProblems", ZEPHIRA_TEXT("TextMenu", "&Problems"), problemItems),
    menu(u"textShow", ZEPHIRA_TEXT("TextMenu", "&Show"), showItems),
};
// clang-format on

} // namespace

std::span<const MenuItem> textMenuTable()
{
    return menus;
}

} // namespace zephira

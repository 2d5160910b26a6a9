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

/// An entry with a check mark for what the window shows beside the text.
constexpr MenuItem shown(QStringView name, QStringView caption, TextCommand command, QStringView statusTip,
                         QStringView shortcut = {})
{
    return {name, caption, shortcut, {}, statusTip, {command}, {}, Kind::Check};
}

constexpr MenuItem lineItems[] = {
    entry(u"textJoinLines", u"&Join Lines", TextCommand::JoinLines,
          u"Make one line of the selected lines, or of this one and the next", u"Ctrl+J"),
    entry(u"textRemoveTrailingBlanks", u"Remove Trailing &Blanks", TextCommand::RemoveTrailingBlanks,
          u"Remove the blanks at the ends of the selected lines, or of all lines"),
};

constexpr MenuItem showItems[] = {
    shown(textname::breadcrumb, u"&Breadcrumb", TextCommand::ShowBreadcrumb,
          u"Show the elements around the caret in a line below the text"),
};

constexpr MenuItem menus[] = {
    menu(u"textLines", u"&Lines", lineItems),
    menu(u"textShow", u"&Show", showItems),
};

} // namespace

std::span<const MenuItem> textMenuTable()
{
    return menus;
}

} // namespace zephira

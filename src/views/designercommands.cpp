// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/designercommands.h"

namespace zephira {

namespace {

using enum DesignerCommand;

// The user sees what a button does; its key is just an internal name.
constexpr DesignerButton buttons[] = {
    {u"Bold", Bold, u"Bold", u"format-text-bold", u"Ctrl+B"},
    {u"Italic", Italic, u"Italic", u"format-text-italic", u"Ctrl+I"},
    {u"Underline", Underline, u"Underline", u"format-text-underline", u"Ctrl+U"},
    {u"Numbers", OrderedList, u"Numbered list", u"format-list-ordered"},
    {u"Bullets", UnorderedList, u"Bulleted list", u"format-list-unordered"},
    {u"Outdent", Indent, u"Indent", u"format-indent-more"},
    {u"Indent", Outdent, u"Outdent", u"format-indent-less"},
    {u"LeftJustify", JustifyLeft, u"Align left", u"format-justify-left"},
    {u"Center", JustifyCenter, u"Center", u"format-justify-center"},
    {u"RightJustify", JustifyRight, u"Align right", u"format-justify-right"},
    {u"Color", SetForeColor, u"Text color", u"format-text-color"},
};

} // namespace

std::span<const DesignerButton> designerButtons()
{
    return buttons;
}

} // namespace zephira

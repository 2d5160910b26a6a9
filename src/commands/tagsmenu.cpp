// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/tagsmenu.h"

#include <algorithm>

namespace zephira {

namespace {

constexpr QuickTag wrap(QStringView name, QStringView caption, QStringView before, QStringView after,
                        QStringView icon = {})
{
    return {name, TagKind::Wrap, caption, icon, before, after};
}

constexpr QuickTag behind(QStringView name, QStringView caption, QStringView text, QStringView icon = {},
                          QStringView shortcut = {})
{
    return {name, TagKind::Behind, caption, icon, text, {}, Refusal::None, shortcut};
}

constexpr QuickTag entries[] = {
    behind(u"StartTag", u"&Start Tag <>", u"<>", {}, u"Shift+Del"),
    behind(u"EndTag", u"&End Tag </>", u"</>"),
    behind(u"Anchor", u"&Anchor", u"<a href=http://urlhere>Text Here</a>", u"insert-link"),
    {u"Image", TagKind::TagEditor, u"&Image", u"insert-image", u"6"},
    wrap(u"Bold", u"&Bold", u"<b>", u"</b>", u"format-text-bold"),
    behind(u"Italic", u"&Italic", u"<i></i>", u"format-text-italic"),
    behind(u"FoSizeoneplus", u"Font Size +1", u"<font size=\"+1\"></font>", u"format-font-size-more"),
    behind(u"FoSize1Minus", u"&Font Size -1", u"<font size=\"-1\"></font>", u"format-font-size-less"),
    wrap(u"Block", u"&Blockquote", u"<blockquote>", u"</blockquote>", u"format-text-blockquote"),
    behind(u"Break", u"&Break", u"<br>", u"#return"),
    wrap(u"Center", u"&Center", u"<center>", u"</center>", u"format-justify-center"),
    wrap(u"Comment", u"&Comment", u"<!---", u"--->"),
    behind(u"HorRule", u"&Horizontal Rule", u"<hr></hr>", u"insert-horizontal-rule"),
    behind(u"nobreak", u"&Non Breaking Break (Space)", u"&nbsp;"),
    behind(u"Paragraph", u"&Paragraph", u"<p></p>"),
    behind(u"Head1", u"&Heading 1", u"<h1></h1>"),
    behind(u"head2", u"&Heading 2", u"<h2></h2>"),
    behind(u"head3", u"&Heading 3", u"<h3></h3>"),
    {u"tagwiz", TagKind::TagEditor, u"&Advanced Tag Wizard", u"tools-wizard"},
};

} // namespace

std::span<const QuickTag> tagsMenu()
{
    return entries;
}

const QuickTag *findTagsEntry(const QString &name)
{
    const auto row = std::ranges::find_if(entries, [&](const QuickTag &tag) { return tag.key == name; });
    return row == std::end(entries) ? nullptr : &*row;
}

} // namespace zephira

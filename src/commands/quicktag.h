// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/refusals.h"

#include <QString>

namespace zephira {

/// What a click on a palette button or an entry of the tag menu does.
enum class TagKind {
    Separator,     ///< nothing: it only takes up a position
    Wrap,          ///< `before`, the selection, `after`
    Behind,        ///< the selection, then `before`
    Replace,       ///< `before` alone; a selection is deleted
    Form,          ///< opens the form named in `before`
    WholeDocument, ///< puts the whole text between the tags of a page
    Title,         ///< asks for a title and puts it into each head
    MailLink,      ///< asks for an address and links to it
    Sound,         ///< asks for a path and embeds it
    Tidy,          ///< a note, then the form named in `before`
    Spelling,
    Help,
    Headings,  ///< a pull-down of the six heading sizes
    Selector,  ///< shows and hides the list of style selectors
    Property,  ///< a note, then the first custom tab
    TagEditor, ///< the tag editor; on the page whose number is `before`, if there is one
    Missing,   ///< needs a program that this system doesn't have
};

/// One row of the palette or of the tag menu.
struct QuickTag {
    /// The button's key or the entry's name; empty where buttons are identified by position.
    QStringView key = {};
    TagKind kind = TagKind::Separator;
    /// Tool tip of a button, caption of a menu entry.
    QStringView label = {};
    /// See icons.h.
    QStringView icon = {};
    QStringView before = {};
    QStringView after = {};
    Refusal refusal = Refusal::None;
    QStringView shortcut = {};

    /// The form that the row opens, or empty.
    constexpr QStringView form() const
    {
        switch (kind) {
        case TagKind::Form:
        case TagKind::Tidy:
            return before;
        case TagKind::TagEditor:
            return u"frmTagEdit";
        case TagKind::Spelling:
            return u"SpellChecker1";
        default:
            return {};
        }
    }
};

/// The text that a row of the kinds Wrap, Behind and Replace makes of a selection; a null string for every other kind.
QString quickTagText(const QuickTag &tag, const QString &selection);

/// The selection, followed by a mail link to the address.
QString mailLinkText(const QString &selection, const QString &address);
QString soundText(const QString &path);
/// The tag pair of heading size 1 to 6 around the selection.
QString headingText(int size, const QString &selection);
/// The whole text inside the tags of a page, each on a line of its own.
QString pageText(const QString &text);
/// Inserts a title after every "<head>", which is matched without regard to case and written in lower case. A text
/// without one is returned unchanged.
QString titledText(const QString &text, const QString &title);

} // namespace zephira

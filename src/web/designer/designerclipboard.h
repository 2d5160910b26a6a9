// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class PageRoundTrip;

/// Markup on the clipboard, in exchange with other programs and with the designer itself.
struct ClipboardMarkup {
    QString markup;
    /// From another program, which may have put its own rubbish into it.
    bool isForeign = false;
};

/// Puts a part of the page on the clipboard: its markup with server code and comments in their places, and its text; of
/// plain text that alone. `markup` is as the engine writes it.
void copyToClipboard(const PageRoundTrip &page, const QString &markup);

/// What the clipboard holds as markup for a page; a text becomes some, with a line break for each line end. For plain text
/// it is the text.
ClipboardMarkup clipboardMarkup(const PageRoundTrip &page);
bool clipboardHasMarkup();

} // namespace zephira

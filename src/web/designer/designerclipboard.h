// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class PageRoundTrip;

/// Markup on the clipboard, for exchange with other programs and with the designer itself.
struct ClipboardMarkup {
    QString markup;
    /// The markup comes from another program, which may have added its own clutter.
    bool isForeign = false;
};

/// Copies a part of the page to the clipboard: its markup, with server code and comments restored, and its text; for
/// plain text only the latter. `markup` is as serialised by the engine.
void copyToClipboard(const PageRoundTrip &page, const QString &markup);

/// The clipboard's content as markup for a page; text is converted, with a line break for each line end. For a
/// plain-text page it is the text.
ClipboardMarkup clipboardMarkup(const PageRoundTrip &page);
bool clipboardHasMarkup();

} // namespace zephira

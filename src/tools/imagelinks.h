// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// The value behind the first "src" in a tag, at any position and in any case: it begins after the character that
/// follows "src", and behind a double quote next to that, and ends before a blank, a ">" or a double quote. An
/// apostrophe is part of the value. Empty if there is no "src" or no value.
QString URLFromTag(const QString &tag);

/// Fills `urls` with the image addresses of a page, in their order, from index 1 on; index 0 is an unused slot. Only
/// `img` tags count, and only those whose URLFromTag() isn't empty. Returns the number of slots. Raises HandlerError
/// for an `<img` without a ">", and for addresses that together have more than maximumLinksLength characters, which
/// takes tags that never end.
qsizetype LinksFromHTML(QStringList &urls, const QString &html);

/// In UTF-16 code units.
constexpr qsizetype maximumLinksLength = 64LL * 1024 * 1024;

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// What an article page begins with.
struct Article {
    QString title;
    /// A language tag, such as "en" or "pt-BR".
    QString language;
    /// One or two sentences for search engines and readers, or empty.
    QString description;
};

/// Whether the text has the form of a language tag: letters and digits in groups with hyphens between them, the first
/// group two to eight letters.
bool isLanguageTag(const QString &text);

/// Whether a page can be made: it needs a title and a language tag.
bool isComplete(const Article &article);

/// The page: an HTML document with the title, the description and a place for the article. A language that is written
/// from right to left gives the page that direction. Line ends are CR LF.
QString articlePage(const Article &article);

} // namespace zephira

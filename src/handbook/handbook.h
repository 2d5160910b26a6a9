// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QHash>
#include <QSize>
#include <QString>

#include <map>
#include <vector>

namespace zephira {

/// What the handbook is made from.
struct HandbookSource {
    /// The content of each page by its name: a heading of the first level and what follows it.
    std::map<QString, QString> pages;
    /// The size in pixels of each picture by the name of its page.
    QHash<QString, QSize> pictures;
    /// The tables of keys, as HTML.
    QString keys;
};

/// A finished file of the handbook.
struct HandbookFile {
    QString name;
    QString text;
};

/// Puts head, navigation, search field and picture around the content of each page, the list of pages into the contents,
/// the tables into the page of keys, and writes the index of the search. A page that is missing, that is in no chapter,
/// or that has no title is an error with a sentence that names it.
Result<std::vector<HandbookFile>> makeHandbook(const HandbookSource &source);

/// The heading of the first level, without markup; empty if there is none.
QString pageTitle(const QString &content);

/// The words of a page's content in lower case, without markup and in their order.
QStringList wordsOf(const QString &content);

/// The size in pixels that a PNG file's first bytes tell; empty if it isn't such a file.
QSize pictureSize(QByteArrayView png);

} // namespace zephira

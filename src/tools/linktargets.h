// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace zephira {

/// The link targets of a page, by a plain search for "href=" in any case. The first pass finds each `href="` and takes
/// the text up to the next double quote. The second finds each `href=`, quoted ones included, and takes the text up to
/// the next ">". So a quoted link appears twice, the second time with its quotes and what follows. Blanks around a
/// target are removed. A match at the very start of the text is missed. If the text has more than 800 characters, a
/// target ends at the latest 800 characters after the beginning of its match.
struct LinkTargets {
    QStringList targets;
    /// Whether `targets` is incomplete, because it would have more than maximumTargetsLength characters in total.
    bool truncated = false;
    /// Whether `yield` ended the search.
    bool stopped = false;
};

/// `yield` is called for each match; the search ends when it returns false.
LinkTargets linkTargets(const QString &text, const std::function<bool()> &yield = {});

/// A page that lists the targets as links, without closing tags; empty if there are no targets.
QString linksPage(const QStringList &targets);

/// What to open for a target: an address with a scheme and a full path as they are, anything else as a path in the
/// given folder.
QString targetToOpen(const QString &target, const QString &folder);

/// In UTF-16 code units. The targets of a text of nothing but `href=` are eight hundred times as long as the text.
constexpr qsizetype maximumTargetsLength = 128LL * 1024 * 1024;

} // namespace zephira

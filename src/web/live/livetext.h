// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

/// A page's source as a browser gets it: without server code, which the page's server would have replaced.
struct LiveText {
    /// The page to be shown. A page without server code is the source itself.
    QString shown;
    /// The same, with the place of each start tag in the source (0-based, in UTF-16 code units) in an attribute, and without
    /// the contents of noscript elements, which are no elements where scripts run.
    ///
    ///     <p class=a>   becomes   <p mark=12 class=a>
    QString marked;
};

/// @param mark  the name of the attribute: a word that the source doesn't contain
LiveText liveText(const QString &source, const QString &mark);

} // namespace zephira

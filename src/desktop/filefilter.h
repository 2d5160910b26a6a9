// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// The filters of a file dialog, from a list of names and patterns divided by bars. "*.*" becomes "*", which matches
/// names without a dot too. An empty list, and a name without patterns at its end, give nothing.
///
///     nameFilters("Html Files|*.html;*.htm|All Files|*.*") == {"Html Files (*.html *.htm)", "All Files (*)"}
QStringList nameFilters(const QString &filter);

/// The path with the extension of the filter's first pattern after it if the file's name has no dot; a pattern that
/// isn't an asterisk, a dot and plain characters adds nothing.
///
///     withSuffixOf("HTML Files (*.html)", "/home/me/page") == "/home/me/page.html"
QString withSuffixOf(const QString &nameFilter, const QString &path);

} // namespace zephira

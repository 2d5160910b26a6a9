// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace zephira {

/// The name filters of a file dialog, from a list of names and patterns separated by bars. "*.*" becomes "*", which
/// also matches names without a dot. An empty list, or a last name without patterns, yields nothing.
///
///     nameFilters("Html Files|*.html;*.htm|All Files|*.*") == {"Html Files (*.html *.htm)", "All Files (*)"}
QStringList nameFilters(const QString &filter);

/// The path, with the extension of the filter's first pattern appended if the file's name has no dot. A pattern that
/// isn't an asterisk, a dot and plain characters adds nothing.
///
///     withSuffixOf("HTML Files (*.html)", "/home/me/page") == "/home/me/page.html"
QString withSuffixOf(const QString &nameFilter, const QString &path);

} // namespace zephira

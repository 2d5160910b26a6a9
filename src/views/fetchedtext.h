// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct FetchedPage;

/// The text of a page. A byte order mark tells the character set, else the server, else the page itself at its start
/// (`<meta charset>`, `<?xml encoding?>`, `@charset`); where none of them does, or the one named isn't known, it is UTF-8 if
/// the bytes are, else Windows-1252.
QString fetchedText(const FetchedPage &page);

/// The character set that a page names at its start, or empty.
///
///     declaredCharset("<meta charset='koi8-r'>") == "koi8-r"
QString declaredCharset(QByteArrayView page);

/// The value of "charset" in a content type: "text/html; Charset=\"utf-8\"" gives "utf-8".
QString charsetOfContentType(const QString &contentType);

} // namespace zephira

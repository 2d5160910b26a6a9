// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

struct FetchedPage;

/// The text of a page. The character set is determined by a byte order mark, else the server, else the start of the
/// page itself (`<meta charset>`, `<?xml encoding?>`, `@charset`). If none of them gives one, or it is unknown, the
/// text is read as UTF-8 if the bytes are valid, else as Windows-1252.
QString fetchedText(const FetchedPage &page);

/// The character set that a page declares at its start, or empty.
///
///     declaredCharset("<meta charset='koi8-r'>") == "koi8-r"
QString declaredCharset(QByteArrayView page);

/// The value of "charset" in a content type: for "text/html; Charset=\"utf-8\"" it is "utf-8".
QString charsetOfContentType(const QString &contentType);

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary pages and headers of servers: the character set is found in what declares it, and valid UTF-8 without a
// declaration reads as itself.
#include "files/utf8.h"
#include "fuzz/fuzztarget.h"
#include "views/fetchedtext.h"
#include "views/pagefetcher.h"

using namespace zephira;

FUZZ_TARGET(fetchedtext)
{
    QByteArray bytes = zephira::fuzz::inputBytes(data, size);
    const qsizetype line = std::max<qsizetype>(bytes.indexOf('\n'), 0);
    const QString header = QString::fromLatin1(bytes.left(line));
    bytes.remove(0, line);
    const QString charset = charsetOfContentType(header);
    check(charset.isEmpty() || header.contains(charset));
    const QString declared = declaredCharset(bytes);
    check(declared.size() <= bytes.size());
    fetchedText({.bytes = bytes, .charset = charset});
    fetchedText({.bytes = bytes, .charset = header});
    const QString text = fetchedText({.bytes = bytes, .charset = {}});
    if (declared.isEmpty() && isValidUtf8(bytes) && !bytes.startsWith("\xef\xbb\xbf"))
        check(text == QString::fromUtf8(bytes));
    return 0;
}

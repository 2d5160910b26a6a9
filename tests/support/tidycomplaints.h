// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>

namespace zephira {

/// All errors and warnings of HTML Tidy about a page in UTF-8; empty if it follows the rules of its doctype.
inline QByteArray complaintsOfTidy(const QByteArray &page)
{
    const TidyDoc document = tidyCreate();
    TidyBuffer messages = {};
    tidySetErrorBuffer(document, &messages);
    tidySetCharEncoding(document, "utf8");
    tidyParseString(document, page.constData());
    tidyCleanAndRepair(document);
    tidyRunDiagnostics(document);
    QByteArray complaints;
    if (tidyErrorCount(document) + tidyWarningCount(document) + tidyAccessWarningCount(document) > 0)
        complaints = QByteArray(reinterpret_cast<const char *>(messages.bp), static_cast<qsizetype>(messages.size));
    tidyBufFree(&messages);
    tidyRelease(document);
    return complaints;
}

} // namespace zephira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/textlines.h"

#include "core/filestore.h"
#include "files/fileerror.h"
#include "files/textfile.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

QStringList textLines(const QString &text)
{
    QStringList lines;
    QStringView rest(text);
    while (!rest.isEmpty()) {
        const auto end = std::ranges::find_if(rest, [](QChar c) { return c == u'\r' || c == u'\n'; });
        const qsizetype length = end - rest.begin();
        lines.append(rest.first(length).toString());
        rest = rest.sliced(length);
        rest = rest.sliced(rest.startsWith(u"\r\n") ? 2 : qMin(rest.size(), qsizetype{1}));
    }
    return lines;
}

Result<QStringList> readLines(const FileStore &files, const QString &path)
{
    Result<QByteArray> bytes = files.read(path);
    if (!bytes)
        return bytes.error();
    const DecodedText text = decodeText(std::move(bytes).value());
    // Counted before the lines are created, because they take many times the memory of their text.
    if (std::max(text.utf8.count('\n'), text.utf8.count('\r')) >= maximumLineCount)
        return readError(path, Error::Code::TooLarge,
                         QCoreApplication::translate("FileErrors", "it has too many lines"));
    return textLines(QString::fromUtf8(text.utf8));
}

} // namespace zephira

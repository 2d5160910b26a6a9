// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/textpage.h"

#include "core/filestore.h"
#include "core/textparts.h"
#include "files/textfile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QByteArrayView lineEnd = "\r\n";

QByteArray valueOr(const QString &value, const char *fallback)
{
    return value.isEmpty() ? QByteArray(fallback) : value.toUtf8();
}

/// Adds a line end, the text, and another line end.
void addAfterBlank(QByteArray &page, const QByteArray &text)
{
    page.append(lineEnd).append(text).append(lineEnd);
}

void addLines(QByteArray &page, QByteArrayView text)
{
    const char *const end = text.end();
    for (const char *next = text.begin(); next != end;) {
        const char *const last = std::find_if(next, end, isLineEnd<char>);
        page.append(next, last - next).append("<BR>").append(lineEnd);
        next = last;
        if (end - next >= lineEnd.size() && QByteArrayView(next, lineEnd.size()) == lineEnd)
            next += lineEnd.size();
        else if (next != end)
            ++next;
    }
}

/// Whether both paths lead to one file.
bool areSame(const FileStore &files, const QString &one, const QString &other)
{
    const FileSignature first = files.signature(one);
    const FileSignature second = files.signature(other);
    return first.exists && second.exists && first.device == second.device && first.inode == second.inode;
}

} // namespace

QByteArray textPage(QByteArrayView text, const TextPageLook &look)
{
    QByteArray page;
    addAfterBlank(page, "<HTML>");
    addAfterBlank(page, "<HEAD>");
    addAfterBlank(page, "<TITLE>" + valueOr(look.title, "No Document Title") + "</TITLE>");
    addAfterBlank(page, "</HEAD>");
    addAfterBlank(page,
                  "<BODY bgcolor=" + valueOr(look.backColour, "white") + " text=" + valueOr(look.textColour, "black")
                      + ">");
    addLines(page, text);
    addAfterBlank(page, {});
    addAfterBlank(page, "</BODY>");
    page.append("</HTML>").append(lineEnd);
    return page;
}

Result<void> writeTextPage(FileStore &files, const QString &input, const QString &output, const TextPageLook &look)
{
    const Result<QByteArray> bytes = files.read(input);
    if (!bytes)
        return bytes.error();
    if (input == output || areSame(files, input, output)) {
        return Error{Error::Code::Refused,
                     u"The page can't be written: the file \"%1\" is the text file itself."_s.arg(output)};
    }
    return files.write(output, textPage(decodeText(bytes.value()).utf8, look));
}

} // namespace zephira
